// Mode 1 writes to the log only, mode 2 to both.
? MEMORYDISPLAYDATA(1);                                              // expect: 1
? FIND(STRINGFROMFILE("current.log"),"all reserved 102400")>0;       // expect: ИСТИНА
? FILEDELETE("current.log");                                         // expect: ИСТИНА
ПАМЯТЬПОКАЗАТЬДАННЫЕ(2);
// expect:  [num]  [addr]  [links] [obj-links]
// expect: all reserved 102400
// expect match: used *
// expect match: localContextUTF8::counterStaticTotal *
// expect match: localClassDeclaration::counterStaticTotal *
// expect match: localValueDescription::counterStaticTotal *
// expect match: localValueList::counterStaticTotal *
// expect match: localValueTable::counterStaticTotal *
// expect match: localDataBase::counterStaticTotal *
// expect match: localDataBaseTable::counterStaticTotal *
// expect match: localDataBaseRecord::counterStaticTotal *
// expect:
// expect match: Внимание!!! *
? FIND(STRINGFROMFILE("current.log"),"all reserved 102400")>0;       // expect: ИСТИНА
