l = PARSEJSON('[1, [2]');         // expect: Json Unabel resolve pos 7 in line with length 7
// expect status: 34
