// Programs may run on a thread of their own, windows live on the application's. What a program asks
// of windows goes over there, and the program waits.
//
// Two ways, which differ in who is in the language meanwhile (localTurn):
//   localVclOnWindowThread     the work goes on with the program: opens a window, runs a form's
//                              module, evaluates. It has the program's turn, lent for the call.
//   localVclAskOnWindowThread  the work waits for a person or another program: a box, a choice, a
//                              dialog. The turn is given up until it is done, so the work may touch
//                              nothing of the language without asking for the turn itself.
// On the windows' thread itself the work is done at once, and the turn is kept or given up just so.
// There must be an application.
#pragma once

#include <functional>

void localVclOnWindowThread(const std::function<void()>& work);
void localVclAskOnWindowThread(const std::function<void()>& work);

// For a thread that is not that of the windows: the work is done over there when its event loop
// comes to it, behind what was posted before, and is done when this returns. The turn stays as it
// is.
void localVclSendToWindowThread(const std::function<void()>& work);

// Whether the calling thread is that of the windows.
bool localVclIsWindowThread();
