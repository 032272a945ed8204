ИНАЧЕЕСЛИ 1=1 ТОГДА     // expect status: 1
