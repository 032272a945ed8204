// A browse as a program describes it.
#pragma once

#include <functional>
#include <string>

class localValueList;

// Opens a window with a browse of the tables that the list describes (its form stands at
// localDbtBrowseConfiguration). `connection` is asked on the windows' thread and gives the name of
// one there. Nothing is opened, and nobody told, when the list lacks a key; and nothing, behind a
// box, when the table or its index cannot be had.
//
// With "selectMode" 1 in the list a person chooses a record: the window is modal, and this returns
// when it has closed. The id chosen, 0 for none, then stands in the list as "idSelected".
//
// On any thread, under the turn, which is given up while a person chooses.
void newLocalDbtBrowseWidget200123(localValueList& list,
                                   const std::function<std::u16string()>& connection);
