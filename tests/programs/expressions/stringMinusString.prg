// Subtracting strings fails and leaves the status as it was, whose words say that all is well.
x = "a"-"b";            // expect status: 54
// expect:
// expect: >> X="a"-"b";
// expect: ERROR!!! Ок. Ошибки отсутствуют
// expect: Ок. Ошибки отсутствуют
