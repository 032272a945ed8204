// One column of a table: what the file holds now (the members sql...), what is wanted, and a value.
//
// A file declares a type as free text. Its first word becomes one of the system's own types "CHAR",
// "INT", "NUME" and "NUMERIC", or none; decimals are not read from the file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class localDbFieldDescription {
public:
    // Every table that the system makes has this column, and records are addressed by it.
    static const std::u16string PrimaryKeyName;
    static const std::u16string PrimaryKeyType;

    // The primary key, as the file has it.
    localDbFieldDescription();
    localDbFieldDescription(std::u16string_view wantedName, std::u16string_view wantedType,
                            std::int32_t length, std::int32_t decimals);
    // From a type as the file declares it: "CHAR(40)". The value is that text.
    localDbFieldDescription(std::u16string_view columnName, std::u16string_view declaredType);

    const std::u16string& getName() const { return name; }
    const std::u16string& getMyType() const { return myType; }
    std::int32_t getLen() const { return len; }
    std::int32_t getDec() const { return dec; }
    const std::u16string& getSqlType() const { return sqlType; }
    std::int32_t getSqlLen() const { return sqlLen; }
    std::int32_t getSqlDec() const { return sqlDec; }

    // "INT", "INTEGER" or "NUME". "NUMERIC" is not among them. Meant.
    bool isNumeric() const;
    // Whether what is wanted is what the file holds.
    bool isUnchanged() const;
    static bool areUnchanged(const std::vector<localDbFieldDescription>& fields);

    // The value as a word of a statement: quoted text, a number in decimals, or the word "Error"
    // for a type that is none of the system's. A number is read in single precision and so loses
    // digits past about seven. Meant.
    std::u16string sqlValue() const;
    // Whether the narrow value stands for one text only: a letter that the narrow encoding cannot
    // hold has become a byte that means nothing.
    bool isValueWhole() const;

    // Stores a text in the first field of a name. Where there is none, says so on the standard
    // output stream and gives false.
    static bool FieldsDescriptionsPutValue(std::vector<localDbFieldDescription>& fields,
                                           std::u16string_view name, std::u16string_view value);
    // Lists fields on the standard output stream.
    static void FieldsDescriptionsCOUT(const std::vector<localDbFieldDescription>& fields);

    std::string value;  // narrow encoding: localString::toUtf8
    std::u16string name;
    std::u16string myType;
    std::int32_t len = 0;
    std::int32_t dec = 0;
    std::u16string sqlName;
    std::u16string sqlType;
    std::int32_t sqlLen = 0;
    std::int32_t sqlDec = 0;
};
