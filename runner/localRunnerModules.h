// The modules that korvo-run can load, and what each is loaded for.
#pragma once

#include <span>

#include "localInterpretatorUTF8/library/localModule.h"

std::span<const localModuleOffer> localRunnerModules();
