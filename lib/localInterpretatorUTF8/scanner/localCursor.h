// Reading a text from a position: the primitives of the scanner, written once for whoever scans.
//
// The text ends in a zero unit, so one unit past the end may be looked at. Nothing is allocated:
// names and strings are views into the text.
#pragma once

#include <string>
#include <string_view>

#include "localInterpretatorUTF8/scanner/localOperators.h"
#include "localInterpretatorUTF8/text/localCharacters.h"

struct localCursor {
    const char16_t* begin;
    const char16_t* at;
    const char16_t* end;

    localCursor(const std::u16string& text, std::uint32_t pos)
        : begin(text.data()),
          at(text.data() + (pos < text.size() ? pos : text.size())),
          end(text.data() + text.size()) {}

    std::uint32_t position() const { return static_cast<std::uint32_t>(at - begin); }
    bool atEnd() const { return at >= end; }
    std::size_t left() const { return static_cast<std::size_t>(end - at); }
    bool startsIgnoringCase(std::u16string_view capitals) const {
        if (left() < capitals.size()) {
            return false;
        }
        for (std::size_t i = 0; i < capitals.size(); ++i) {
            if (toUpper(at[i]) != capitals[i]) {
                return false;
            }
        }
        return true;
    }

    void skipBlanks() {
        for (;;) {
            while (at < end && isBlankUnit(*at)) {
                ++at;
            }
            if (left() < 2 || at[0] != u'/' || at[1] != u'/') {
                return;
            }
            while (at < end && *at != u'\n') {
                ++at;
            }
        }
    }

    std::u16string_view nameToken() {
        skipBlanks();
        const char16_t* start = at;
        while (at < end && isNameUnit(*at)) {
            ++at;
        }
        return {start, static_cast<std::size_t>(at - start)};
    }

    // No word boundary is asked for: behind an operand, whatever begins with a word of logic is
    // one.
    int binaryOperation() {
        skipBlanks();
        if (atEnd()) {
            return localBinaryOperationNONE;
        }
        const auto found = [this](int operation, int length) {
            at += length;
            return operation;
        };
        switch (*at) {
            case u'-':
                return found(localBinaryOperationSUBTRACT, 1);
            case u'+':
                return found(localBinaryOperationADD, 1);
            case u'/':
                return found(localBinaryOperationDIVIDE, 1);
            case u'%':
                return found(localBinaryOperationREMAINDER, 1);
            case u'*':
                return found(localBinaryOperationMULTIPLY, 1);
            case u'=':
                return found(localBinaryOperationEQUAL, 1);
            case u'<':
                if (at[1] == u'>') {
                    return found(localBinaryOperationNOTEQUAL, 2);
                }
                return at[1] == u'=' ? found(localBinaryOperationLESSOREQUAL, 2)
                                     : found(localBinaryOperationLESS, 1);
            case u'>':
                return at[1] == u'=' ? found(localBinaryOperationGREATEROREQUAL, 2)
                                     : found(localBinaryOperationGREATER, 1);
            case u'O':
            case u'o':
                return startsIgnoringCase(u"OR") ? found(localBinaryOperationOR, 2)
                                                 : localBinaryOperationNONE;
            case u'A':
            case u'a':
                return startsIgnoringCase(u"AND") ? found(localBinaryOperationAND, 3)
                                                  : localBinaryOperationNONE;
            case u'И':
            case u'и':
                return startsIgnoringCase(u"ИЛИ") ? found(localBinaryOperationOR, 3)
                                                  : found(localBinaryOperationAND, 1);
            default:
                return localBinaryOperationNONE;
        }
    }

    // The text between two equal delimiters, the first of which is the present unit. False when
    // there is no second one; the cursor is at the end then.
    bool stringToken(std::u16string_view& content) {
        const std::u16string_view rest(at + 1, left() - 1);
        const std::size_t length = rest.find(*at);
        if (length == std::u16string_view::npos) {
            at = end;
            return false;
        }
        content = rest.substr(0, length);
        at += length + 2;
        return true;
    }

    // Digits with at most one point. False for a token of more than 16 characters.
    bool numberToken(double& number);
};
