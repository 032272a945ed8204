// Lists nested 10000 deep are read, written and gone.
s = "";
e = "";
i = 0;
while (i < 10000) do
  s = s + "[";
  e = e + "]";
  i = i + 1;
enddo;
l = PARSEJSON(s + "5" + e);
i = 1;
while (i < 10000) do
  l = l.VALUEGET(1);
  i = i + 1;
enddo;
? l.VALUEGET(1);                                            // expect: 5
l = PARSEJSON(s + e);
t = VALUETOJSON(l);
l = VALUEFROMJSON(t);
? l.SIZE();                                                 // expect: 1
