// AND stands above arithmetic: 1+(1 AND 1) fails before the sum.
? 1+1 AND 1;                // expect status: 16
