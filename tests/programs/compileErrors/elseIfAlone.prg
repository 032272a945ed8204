ELSEIF 1=1 THEN         // expect status: 1
// expect: ELSEIF 1=1 THEN         // expect status: 1
// expect: Неизвестный статус возврата ном: 1
