? stringshow(1);        // expect status: 26
// expect:
// expect: >> stringshow() in );
// expect: ERROR!!! Метод существует, но моожет быть применен только в графической версии.
