RETURN nobody;          // expect status: 10
// expect: localCompiledOperatorTypeRENURN with expression [(nobody)]
// expect: ERROR!!!
// expect: Неверный атрибут.
