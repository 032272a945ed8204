// The second print reads as a conditional of the first.
? 1
? 2;                    // expect status: 38
