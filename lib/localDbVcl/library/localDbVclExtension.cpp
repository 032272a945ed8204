#include "localDbVcl/localDbVclExtension.h"

#include "manager/localDbTreeShow.h"

namespace {

constexpr localExtensionMethod methods[] = {
    {u"DATABASE", u"TREESHOW", localDbTreeShow},
};

}  // namespace

constexpr localExtension localDbVclExtension = {.name = u"localDbVcl", .methods = methods};
