// The context that the application keeps for programs that are not typed: the manual and the batch.
#pragma once

class localContextUTF8;

// The context whose address stands in the application's property "localGlobalContext". Made and put
// there when nobody has, and then owned by the application.
localContextUTF8* localApplicationContext();
