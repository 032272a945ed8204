#include "localInterpretatorUTF8/host/localHalt.h"

#include <cstdio>
#include <cstdlib>

#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/text/localTrace.h"

void exit_FAILURE(std::u16string_view message) {
    traceLine({u"Error!!!  ", message}, "exit_FAILURE");
    localHost& host = localHost::current();
    host.setCursor(localHost::Cursor::arrow);
    host.haltBox(u"Halt!!! Runtime error.", message);
    host.setCursor(localHost::Cursor::restored);
    // Nothing is torn down: other threads and their windows may be at work with it.
    std::fflush(nullptr);
    std::_Exit(1);
}
