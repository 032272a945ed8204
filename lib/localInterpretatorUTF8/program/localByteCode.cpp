#include "localInterpretatorUTF8/program/localByteCode.h"

#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"

bool localByteCode::compile(int& status, const std::u16string& source) {
    using namespace localInterpretatorUTF8;
    source_ = source;
    localPosition pos = 0;
    scanStringSkipBlanks(source, pos);
    const char16_t unit = pos < source.size() ? source[pos] : u'\0';
    const bool isDigit = unit >= u'0' && unit <= u'9';
    if (isDigit || unit == u'.') {
        localSlot number;
        if (!scanStringGetNumberTokenAndEvaluete(status, source, pos, number.asResult())) {
            return false;
        }
        data_.emplace_back(*number);
        instructions_.push_back({LOAD, static_cast<std::int32_t>(data_.size() - 1),
                                 u"localByteCode::LOAD number " + number->toString().string()});
        return true;
    }
    if (unit == u'"' || unit == u'\'' || isNameUnit(unit)) {
        return true;
    }
    status = localErrorTypeSYNTAX;
    return false;
}

void localByteCode::list() const {
    const auto field = [](const std::u16string& text) { return u" [" + text + u"]"; };
    writeLine(u"ByteCode [" + source_ + u"]");
    writeLine(u"** DATA **");
    for (std::size_t i = 0; i < data_.size(); ++i) {
        writeLine(field(numberToString(static_cast<double>(i))) + field(data_[i].dump()));
    }
    writeLine(u"** CODE **");
    for (std::size_t i = 0; i < instructions_.size(); ++i) {
        const Instruction& instruction = instructions_[i];
        writeLine(field(numberToString(static_cast<double>(i))) +
                  field(numberToString(instruction.opcode)) +
                  field(numberToString(instruction.operand)) + field(instruction.comment));
    }
}
