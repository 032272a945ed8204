l = PARSEJSON("");                // expect: Json Unabel resolve pos 0 in line with length 0
// expect status: 34
