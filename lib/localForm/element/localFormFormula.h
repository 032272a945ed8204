// Formulas of a running form. Who calls has the language's turn.
#pragma once

#include <memory>
#include <optional>
#include <string>

class localFormScope;

// The text of what the expression gives; nothing when it fails.
std::optional<std::u16string> localFormFormulaValue(const std::shared_ptr<localFormScope>& scope,
                                                    const std::u16string& formula);

// Runs the statements, under the wait cursor. No statements are done at once.
bool localFormFormulaRun(const std::shared_ptr<localFormScope>& scope,
                         const std::u16string& formula);
