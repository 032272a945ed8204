l = PARSEJSON('["abc]');          // expect: Json Unabel resolve pos 6 in line with length 6
// expect status: 34
