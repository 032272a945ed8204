#include "localDb/field/localDbFieldDescription.h"

#include "localDb/field/localDbFieldValue.h"
#include "support/localDbTest.h"

namespace {

using Field = localDbFieldDescription;

Field valued(std::u16string_view type, std::u16string_view value, int dec = 0) {
    Field field(u"f", type, 10, dec);
    field.value = localString::toUtf8(value);
    return field;
}

TEST(localDbFieldDescription, theDefaultOneIsThePrimaryKey) {
    const Field key;
    EXPECT_EQ(key.getName(), u"id");
    EXPECT_EQ(key.getMyType(), u"INTEGER");
    EXPECT_EQ(key.getLen(), 18);
    EXPECT_EQ(key.getDec(), 0);
    EXPECT_TRUE(key.isUnchanged());
    EXPECT_EQ(Field::PrimaryKeyName, u"id");
    EXPECT_EQ(Field::PrimaryKeyType, u"INTEGER");
}

TEST(localDbFieldDescription, aWantedOneHasNothingInTheFile) {
    const Field field(u"price", u"NUME", 12, 2);
    EXPECT_EQ(field.value, "");
    EXPECT_EQ(field.sqlName, u"");
    EXPECT_EQ(field.getSqlType(), u"");
    EXPECT_EQ(field.getSqlLen(), 0);
    EXPECT_EQ(field.getSqlDec(), 0);
    EXPECT_FALSE(field.isUnchanged());
}

struct Declared {
    std::u16string_view text;
    std::u16string_view myType;
    std::u16string_view sqlType;
    int len;
    bool unchanged;
};

class localDbDeclaredType : public testing::TestWithParam<Declared> {};

TEST_P(localDbDeclaredType, isReadAsStated) {
    const Declared& wanted = GetParam();
    const Field field(u"f", wanted.text);
    EXPECT_EQ(field.value, localString::toUtf8(wanted.text));
    EXPECT_EQ(field.sqlName, u"f");
    EXPECT_EQ(field.getMyType(), wanted.myType);
    EXPECT_EQ(field.getSqlType(), wanted.sqlType);
    EXPECT_EQ(field.getLen(), wanted.len);
    EXPECT_EQ(field.getSqlLen(), wanted.len);
    EXPECT_EQ(field.getDec(), 0);
    EXPECT_EQ(field.isUnchanged(), wanted.unchanged);
}

INSTANTIATE_TEST_SUITE_P(, localDbDeclaredType,
                         testing::Values(Declared{u"CHAR(40)", u"CHAR", u"CHAR", 40, true},
                                         Declared{u"CHAR(300)", u"CHAR", u"CHAR", 255, true},
                                         Declared{u"CHAR(255)", u"CHAR", u"CHAR", 255, true},
                                         Declared{u"CHAR(0)", u"CHAR", u"CHAR", 255, true},
                                         Declared{u"CHAR", u"CHAR", u"CHAR", 255, true},
                                         Declared{u"CHAR( 12 )", u"CHAR", u"CHAR", 12, true},
                                         Declared{u"CHAR(x)", u"CHAR", u"CHAR", 255, true},
                                         Declared{u"CHAR(99999999999)", u"CHAR", u"CHAR", 255,
                                                  true},
                                         Declared{u"VARCHAR(20)", u"CHAR", u"VARCHAR", 20, false},
                                         Declared{u"INT", u"INT", u"INT", 24, true},
                                         Declared{u"INTEGER", u"INT", u"INTEGER", 24, false},
                                         Declared{u"NUME(12,2)", u"NUME", u"NUME", 12, true},
                                         Declared{u"NUMERIC(30)", u"NUMERIC", u"NUMERIC", 24, true},
                                         Declared{u"char(40)", u"", u"char", 40, false},
                                         Declared{u"CHAR (40)", u"", u"CHAR ", 40, false},
                                         Declared{u"TEXT", u"", u"TEXT", 255, false},
                                         Declared{u"(40)", u"", u"(40)", 255, false},
                                         Declared{u"", u"", u"", 255, true}));

TEST(localDbFieldDescription, numericIsNotWhatTheWordSays) {
    EXPECT_TRUE(Field(u"f", u"INT", 1, 0).isNumeric());
    EXPECT_TRUE(Field(u"f", u"INTEGER", 1, 0).isNumeric());
    EXPECT_TRUE(Field(u"f", u"NUME", 1, 0).isNumeric());
    EXPECT_FALSE(Field(u"f", u"NUMERIC", 1, 0).isNumeric());
    EXPECT_FALSE(Field(u"f", u"CHAR", 1, 0).isNumeric());
}

TEST(localDbFieldDescription, aListIsUnchangedWhenAllAre) {
    EXPECT_TRUE(Field::areUnchanged({}));
    EXPECT_TRUE(Field::areUnchanged({Field(), Field(u"a", u"CHAR(4)")}));
    EXPECT_FALSE(Field::areUnchanged({Field(), Field(u"a", u"VARCHAR(4)")}));
    Field renamed(u"a", u"CHAR(4)");
    renamed.name = u"b";
    EXPECT_FALSE(Field::areUnchanged({renamed}));
}

TEST(localDbFieldDescription, textIsQuoted) {
    EXPECT_EQ(valued(u"CHAR", u"it's").sqlValue(), u"'it''s'");
    EXPECT_EQ(valued(u"CHAR", u"''").sqlValue(), u"''''''");
    EXPECT_EQ(valued(u"CHAR", u"").sqlValue(), u"''");
    EXPECT_EQ(valued(u"CHAR", u"Гвоздь 'ёж'").sqlValue(), u"'Гвоздь ''ёж'''");
}

TEST(localDbFieldDescription, numbersAreWrittenInDecimals) {
    EXPECT_EQ(valued(u"INT", u"").sqlValue(), u"0");
    EXPECT_EQ(valued(u"INT", u" 42 ").sqlValue(), u"42");
    EXPECT_EQ(valued(u"INT", u"abc").sqlValue(), u"0");
    EXPECT_EQ(valued(u"INTEGER", u"9223372036854775807").sqlValue(), u"9223372036854775807");
    EXPECT_EQ(valued(u"INT", u"-9223372036854775808").sqlValue(), u"-9223372036854775808");
    EXPECT_EQ(valued(u"NUME", u"", 2).sqlValue(), u"0.00");
    EXPECT_EQ(valued(u"NUMERIC", u" 1.5 ", 2).sqlValue(), u"1.50");
    // Single precision.
    EXPECT_EQ(valued(u"NUME", u"123456789", 0).sqlValue(), u"123456792");
    EXPECT_EQ(valued(u"NUME", u"0.1", 10).sqlValue(), u"0.1000000015");
}

TEST(localDbFieldDescription, anotherTypeMakesTheStatementFail) {
    EXPECT_EQ(valued(u"", u"1").sqlValue(), u"Error");
    EXPECT_EQ(valued(u"TEXT", u"1").sqlValue(), u"Error");
}

TEST(localDbFieldDescription, aLostLetterIsSeen) {
    EXPECT_TRUE(valued(u"CHAR", u"Ёлка, ёж, yes").isValueWhole());
    EXPECT_FALSE(valued(u"CHAR", u"5 €").isValueWhole());
    EXPECT_FALSE(valued(u"CHAR", u"naïve").isValueWhole());
}

TEST(localDbFieldDescription, aValueGoesToTheFirstFieldOfItsName) {
    std::vector<Field> fields{Field(u"a", u"CHAR(4)"), Field(u"b", u"CHAR(4)"),
                              Field(u"b", u"CHAR(4)")};
    EXPECT_TRUE(Field::FieldsDescriptionsPutValue(fields, u"b", u"ёж"));
    EXPECT_EQ(fields[0].value, "CHAR(4)");
    EXPECT_EQ(fields[1].value, "ёж");
    EXPECT_EQ(fields[2].value, "CHAR(4)");
}

TEST(localDbFieldDescription, aValueWithoutAFieldIsToldOf) {
    std::vector<Field> fields{Field()};
    testing::internal::CaptureStdout();
    EXPECT_FALSE(Field::FieldsDescriptionsPutValue(fields, u"цена", u"12"));
    EXPECT_THAT(
        testing::internal::GetCapturedStdout(),
        testing::MatchesRegex("func: FieldsDescriptionsPutValue file: ../lib/localDb line: [0-9]+ "
                              "Не удалось сохранить 12 в цена\n"
                              " localDbFieldDescription::PrimaryKeyName    = \\[id\\] \n"
                              "                                  FieldName = \\[цена\n"));
}

TEST(localDbFieldDescription, aListIsPrinted) {
    testing::internal::CaptureStdout();
    Field::FieldsDescriptionsCOUT({Field(u"a", u"NUME(12,2)")});
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "список полей из parametrFdVector  func: FieldsDescriptionsCOUT\n"
              "getName() = a\nvalueAsStdString = 'NUME(12,2)'\ngetMyType() = NUME\n"
              "getSqlType() = NUME\ngetLen() = 12\ngetSqlLen() = 12\ngetDec() = 0\n"
              "getSqlDec() = 0\n");
}

TEST(localDbFieldValue, aCellIsQuotedByItsTypeAlone) {
    EXPECT_EQ((localDbFieldValue{.type = u"CHAR", .value = "it's €"}.sqlValue()), "'it''s €'");
    EXPECT_EQ((localDbFieldValue{.type = u"INT", .value = "1'"}.sqlValue()), "1''");
}

}  // namespace
