// Browses of the demonstration file (prgTest/demoData.prg): how one is set up.
#pragma once

// Shows a sample, 1 to 4, over the connection "dbMain". On the windows' thread.
void test10(int sample);
