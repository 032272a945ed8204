#include "localDbVcl/localDbVclExtension.h"

constexpr localExtension localDbVclExtension = {.name = u"localDbVcl"};
