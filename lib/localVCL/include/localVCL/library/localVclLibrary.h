// The functions of the language that need a widget: PIXMAPASBASE64SHOW; and those on colours and
// pictures.
#pragma once

// Gives the language these functions. There must be an application when they are called.
void localVclLibraryInstall();
