// expect status: 16
FUNCTION f(a,
