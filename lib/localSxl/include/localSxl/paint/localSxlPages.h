// A sheet on pages of paper, a PDF's or a printer's.
//
// What is too wide or too high goes on further pages, each with the numbers of its columns and rows
// at the edges. Only pages with cells are made, so the work goes by cells and not by rows.
#pragma once

class QPagedPaintDevice;
class localSxlSheet;

// Draws all pages, one at least. False when the device cannot be drawn on. Needs an application.
bool localSxlPagesPaint(const localSxlSheet& sheet, QPagedPaintDevice& device);
