// The totals of the store and the counters of the classes.
? MEMORYDISPLAYDATA();
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
// expect: Внимание!!! При вызове из интерпретатора функции memoryDisplayData() два элемента данных добавляются самим интерпретатором.
// expect: 1
