#include "localDb/field/localDbFieldDescription.h"

#include <algorithm>

#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "report/localDbReport.h"
#include "text/localDbText.h"

namespace {

// The words by which files declare types, as written: case counts.
struct TypeWord {
    std::u16string_view declared;
    std::u16string_view ours;
    std::int32_t length;
};
constexpr TypeWord typeWords[] = {
    {u"CHAR", u"CHAR", 255},  {u"VARCHAR", u"CHAR", 255}, {u"INT", u"INT", 24},
    {u"INTEGER", u"INT", 24}, {u"NUME", u"NUME", 24},     {u"NUMERIC", u"NUMERIC", 24},
};
constexpr std::int32_t unknownLength = 255;
constexpr std::int32_t keyLength = 18;

// The number that the text begins with; what is neither a digit nor a blank ends it.
std::int32_t lengthOf(std::u16string_view text) {
    const auto end = std::find_if(text.begin(), text.end(), [](char16_t unit) {
        return unit != u' ' && (unit < u'0' || unit > u'9');
    });
    const auto size = static_cast<std::size_t>(end - text.begin());
    return localDbQString(text.substr(0, size)).trimmed().toInt();
}

}  // namespace

const std::u16string localDbFieldDescription::PrimaryKeyName = u"id";
const std::u16string localDbFieldDescription::PrimaryKeyType = u"INTEGER";

localDbFieldDescription::localDbFieldDescription()
    : name(PrimaryKeyName),
      myType(PrimaryKeyType),
      len(keyLength),
      sqlName(PrimaryKeyName),
      sqlType(PrimaryKeyType),
      sqlLen(keyLength) {}

localDbFieldDescription::localDbFieldDescription(std::u16string_view wantedName,
                                                 std::u16string_view wantedType,
                                                 std::int32_t length, std::int32_t decimals)
    : name(wantedName), myType(wantedType), len(length), dec(decimals) {}

localDbFieldDescription::localDbFieldDescription(std::u16string_view columnName,
                                                 std::u16string_view declaredType)
    : value(localString::toUtf8(declaredType)), name(columnName), sqlName(columnName) {
    const std::size_t bracket = declaredType.find(u'(');
    const bool hasLength = bracket != std::u16string_view::npos && bracket > 0;
    sqlType = hasLength ? declaredType.substr(0, bracket) : declaredType;
    std::int32_t longest = unknownLength;
    for (const TypeWord& word : typeWords) {
        if (sqlType == word.declared) {
            myType = word.ours;
            longest = word.length;
        }
    }
    len = hasLength ? lengthOf(declaredType.substr(bracket + 1)) : 0;
    if (len == 0 || len > longest) {
        len = longest;
    }
    sqlLen = len;
}

bool localDbFieldDescription::isNumeric() const {
    return myType == u"INT" || myType == u"INTEGER" || myType == u"NUME";
}

bool localDbFieldDescription::isUnchanged() const {
    return name == sqlName && myType == sqlType && len == sqlLen && dec == sqlDec;
}

bool localDbFieldDescription::areUnchanged(const std::vector<localDbFieldDescription>& fields) {
    return std::all_of(fields.begin(), fields.end(),
                       [](const localDbFieldDescription& field) { return field.isUnchanged(); });
}

std::u16string localDbFieldDescription::sqlValue() const {
    const std::u16string text = localString::fromUtf8(value);
    if (myType == u"CHAR") {
        return localDbQuoted(text);
    }
    const QString number = localDbQString(text).trimmed();
    if (myType == u"NUME" || myType == u"NUMERIC") {
        return QString::number(static_cast<double>(number.toFloat()), 'f', dec).toStdU16String();
    }
    if (myType == u"INT" || myType == PrimaryKeyType) {
        return localDbNumber(number.toLongLong());
    }
    return u"Error";
}

bool localDbFieldDescription::isValueWhole() const {
    // What cannot be written becomes byte 255, which reads as the unit 255.
    return localString::fromUtf8(value).find(char16_t{255}) == std::u16string::npos;
}

bool localDbFieldDescription::FieldsDescriptionsPutValue(
    std::vector<localDbFieldDescription>& fields, std::u16string_view name,
    std::u16string_view value) {
    for (localDbFieldDescription& field : fields) {
        if (field.name == name) {
            field.value = localString::toUtf8(value);
            return true;
        }
    }
    writeLine(localDbWords(localDbTraceHead("FieldsDescriptionsPutValue"),
                           u" Не удалось сохранить ", value, u" в ", name));
    writeLine(
        localDbWords(u" localDbFieldDescription::PrimaryKeyName    = [", PrimaryKeyName, u"] "));
    writeLine(localDbWords(u"                                  FieldName = [", name));
    return false;
}

void localDbFieldDescription::FieldsDescriptionsCOUT(
    const std::vector<localDbFieldDescription>& fields) {
    writeLine(u"список полей из parametrFdVector  func: FieldsDescriptionsCOUT");
    for (const localDbFieldDescription& field : fields) {
        writeLine(u"getName() = " + field.name);
        writeLine(u"valueAsStdString = '" + localString::fromUtf8(field.value) + u"'");
        writeLine(u"getMyType() = " + field.myType);
        writeLine(u"getSqlType() = " + field.sqlType);
        writeLine(u"getLen() = " + localDbNumber(field.len));
        writeLine(u"getSqlLen() = " + localDbNumber(field.sqlLen));
        writeLine(u"getDec() = " + localDbNumber(field.dec));
        writeLine(u"getSqlDec() = " + localDbNumber(field.sqlDec));
    }
}
