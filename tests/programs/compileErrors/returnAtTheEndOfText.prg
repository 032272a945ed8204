// Nothing at all behind the word is a missing operand.
// expect status: 37
RETURN
