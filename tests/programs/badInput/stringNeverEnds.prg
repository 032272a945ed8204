// expect match: ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ *
// expect status: 37
? "this goes on
? 1;
? 'and on';
