// A fault in a key has no line of its own; the first line is the empty one of the failed call.
l = PARSEJSON('{key: 1}');
// expect:
// expect match: >> PARSEJSON() in *
// expect: ERROR!!! Ошибка разбора формата JSON!
// expect status: 34
