// НЕТ reads as НЕ and Т, NOTE as NOT and E.
Т = 1=1;
E = 1=2;
? НЕТ;          // expect: ЛОЖЬ
? нет;          // expect: ЛОЖЬ
? NOTE;         // expect: ИСТИНА
? Note;         // expect: ИСТИНА
? (NOTE) AND НЕТ; // expect status: 10
