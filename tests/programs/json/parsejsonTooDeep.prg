// 100000 open brackets are a fault like any other.
s = "[";
i = 1;
while (i < 100000) do
  s = s + "[";
  i = i + 1;
enddo;
l = PARSEJSON(s);                 // expect: Json pos :60000( line:1, pos: 60000)
// expect status: 34
