#include "element/localFormFormula.h"

#include "localForm/element/localFormScope.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localCharacters.h"

std::optional<std::u16string> localFormFormulaValue(const std::shared_ptr<localFormScope>& scope,
                                                    const std::u16string& formula) {
    const localFormScope::Use use(scope);
    int status = localErrorTypeOK;
    std::optional<std::u16string> text;
    localGuarded(status, __func__, [&] {
        const std::u16string expression(trimBoth(formula));
        localInterpretatorUTF8::localPosition position = 0;
        localSlot value;
        if (localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
                status, expression, position, value.asResult(), &scope->context, false)) {
            text = std::u16string(value->toString().view());
        }
        return text.has_value();
    });
    return text;
}

bool localFormFormulaRun(const std::shared_ptr<localFormScope>& scope,
                         const std::u16string& formula) {
    const localFormScope::Use use(scope);
    int status = localErrorTypeOK;
    return localGuarded(status, __func__, [&] {
        const std::u16string statements(trimBoth(formula));
        return statements.empty() || textExec(status, statements, &scope->context);
    });
}
