// A browse of a directory: its two regimes, folders, the path above the rows.
#include "browseTest.h"

using Browse = localRefBrowseWidget200123;
using Purpose = localDbtBrowsePurpose;

class browseDirectory : public browseTest {
    Q_OBJECT

private:
    void press(Browse& grid, Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier) {
        QTest::keyClick(&grid, key, held);
    }
    static QString under(const Browse& grid) { return QString::number(grid.getId()); }

private slots:
    void itBeginsFlatByDescription() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        QVERIFY(!grid->isHierarchical());
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
        QCOMPARE(rowTexts(*grid, 1)[2], QString("Гвозди 1"));
        QCOMPARE(grid->currentRow(), 1U);
        QVERIFY(output_.text().contains(
            "Устанавлен альтернативный индекс для сортировки по умолчанию  [Ref03_PDESCR"));
    }

    void anEmptyDirectoryHasTheCursorOnTheHead() {
        makeGoods(0);
        const auto grid = shown<Browse>(20);
        QCOMPARE(grid->currentRow(), 0U);
        press(*grid, Qt::Key_H);
        QVERIFY(grid->isHierarchical());
        press(*grid, Qt::Key_Down);
        press(*grid, Qt::Key_Up);
        press(*grid, Qt::Key_H);
        QVERIFY(!grid->isHierarchical());
        QCOMPARE(grid->getId(), 0);
        QVERIFY(host_.calls.empty());
    }

    void theRegimeChangesAroundTheRecord() {
        makeGoods(1000);
        sql("update Ref03 set parentid=3 where id=7");
        const auto grid = shown<Browse>(20);
        grid->idxSet(u"Ref03_CODE");
        press(*grid, Qt::Key_Home);
        for (int i = 0; i < 160; ++i) {
            press(*grid, Qt::Key_Down, {});
        }
        // A row of folder 7, which lies in folder 3.
        QCOMPARE(under(*grid), QString("201"));
        press(*grid, Qt::Key_H);
        QVERIFY(grid->isHierarchical());
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"7"});
        QCOMPARE(under(*grid), QString("201"));
        QCOMPARE(rowTexts(*grid, 1)[2], QString("Папка 3"));
        QCOMPARE(rowTexts(*grid, 2)[2], QString("Папка 7"));
        QVERIFY(saveScreenshot(*grid, "browseDirectory"));
        const QString told = output_.text();
        for (const char* const line :
             {"N2EW idxName= Ref03_PDESCR", "It was NOT Hierarchical regim! ",
              "will be  parentId=7", "newStartBuferKey[0] = [7] "}) {
            QVERIFY2(told.contains(line), line);
        }
        press(*grid, Qt::Key_H);
        QVERIFY(!grid->isHierarchical());
        QCOMPARE(under(*grid), QString("201"));
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_CODE"));
        QCOMPARE(grid->dataSource().fixedKeyValues().size(), 0U);
        QVERIFY(output_.text().contains(
            "------------------------------------------------- It was Hierarchical regim! "));
    }

    void aThingAtTheRootHasNoPath() {
        makeGoods(100);
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_End);
        press(*grid, Qt::Key_H);
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"0"});
        QCOMPARE(grid->rowNumber(1), 0);
        QCOMPARE(rows("select id from Ref03 where parentid=0").size(),
                 qsizetype(grid->dataSource().dataBuffer().size()));
        // Ctrl+Up at the root is Up.
        const QString before = under(*grid);
        press(*grid, Qt::Key_Up);
        QVERIFY(under(*grid) != before);
    }

    void foldersAreEnteredAndLeft() {
        makeGoods(1000);
        sql("update Ref03 set parentid=2 where id=5");
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_End);
        press(*grid, Qt::Key_H);
        press(*grid, Qt::Key_Home);
        while (under(*grid) != "2") {
            press(*grid, Qt::Key_Down, {});
        }
        press(*grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 2U);
        QCOMPARE(rowTexts(*grid, 1)[0], QString("2"));
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"2"});
        const QStringList inside =
            rows("select id from Ref03 where parentid=2 order by isfolder,descr,id");
        for (qsizetype i = 0; i < inside.size(); ++i) {
            QCOMPARE(rowTexts(*grid, static_cast<unsigned>(2 + i - grid->mRec1()))[0], inside[i]);
            if (i + 1 < inside.size()) {
                press(*grid, Qt::Key_Down, {});
            }
        }
        // The last one is the folder.
        QCOMPARE(under(*grid), QString("5"));
        press(*grid, Qt::Key_Down);
        QCOMPARE(rowTexts(*grid, 2)[0], QString("5"));
        QCOMPARE(grid->currentRow(), 3U);
        // On a thing it is Down.
        press(*grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 4U);
        // Ctrl+PageUp goes to the start of the folder.
        press(*grid, Qt::Key_PageUp);
        QCOMPARE(under(*grid),
                 rows("select id from Ref03 where parentid=5 order by isfolder,descr,id")[0]);
        press(*grid, Qt::Key_Up);
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"2"});
        QCOMPARE(grid->currentRow(), 2U);
        press(*grid, Qt::Key_Up);
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"0"});
        QCOMPARE(grid->currentRow(), 1U);
        QVERIFY(host_.calls.empty());
    }

    void anEmptyFolderShowsItsPath() {
        makeGoods(100);
        sql("insert into Ref03 (id, parentid, isfolder, code, descr) values (900, 0, 1, 'p', 'A')");
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_Home);
        QCOMPARE(under(*grid), QString("900"));
        press(*grid, Qt::Key_H);
        press(*grid, Qt::Key_Down);
        QCOMPARE(grid->currentRow(), 1U);
        QCOMPARE(rowTexts(*grid, 1)[2], QString("A"));
        QCOMPARE(rowTexts(*grid, 2)[2], QString());
        QCOMPARE(grid->getId(), 0);
        for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp}) {
            press(*grid, key, {});
        }
        QVERIFY(saveScreenshot(*grid, "browseEmptyFolder"));
        press(*grid, Qt::Key_H);
        QCOMPARE(under(*grid), QString("900"));
    }

    void aPathHigherThanTheWindowIsNoHarm() {
        makeGoods(100);
        sql("insert into Ref03 (id, parentid, isfolder, code, descr) with recursive n(i) as (select"
            " 1001 union all select i+1 from n where i<1040) select i, case i when 1001 then 0 else"
            " i-1 end, 1, 'f' || i, 'Я' || i from n");
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_End);
        QCOMPARE(under(*grid), QString("1040"));
        press(*grid, Qt::Key_H);
        QCOMPARE(under(*grid), QString("1040"));
        for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp}) {
            press(*grid, key, {});
            press(*grid, key);
        }
        setRows(*grid, 60);
        for (int i = 0; i < 45; ++i) {
            press(*grid, Qt::Key_Up);
        }
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"0"});
        QVERIFY(host_.calls.empty());
    }

    void foldersThatLieInEachOtherEndThePath() {
        makeGoods(100);
        sql("update Ref03 set parentid=2 where id=1");
        sql("update Ref03 set parentid=1 where id=2");
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_Home);
        press(*grid, Qt::Key_H);
        QVERIFY(grid->isHierarchical());
        QCOMPARE(grid->rowNumber(3), 0);
    }

    // --- Orders and finding

    void columnsSortInBothRegimes() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        const QString id = under(*grid);
        press(*grid, Qt::Key_2);
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_CODE"));
        press(*grid, Qt::Key_H);
        press(*grid, Qt::Key_2);
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_PCODE"));
        QVERIFY(grid->isHierarchical());
        QCOMPARE(under(*grid), id);
    }

    void anOrderWithoutItsPairIsNone() {
        makeGoods(100);
        Browse grid(goods(u""), goodsColumns(), Purpose::look);
        setRows(grid, 20);
        const QString told = output_.text();
        QVERIFY(told.contains("Непарные индексы для колонки id"));
        QVERIFY(told.contains(" Очищены!!!"));
        press(grid, Qt::Key_1);
        QCOMPARE(grid.dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
        QCOMPARE(grid.idxNameOfColumn(0), std::u16string());
        QCOMPARE(grid.idxNameOfColumn(1), std::u16string(u"Ref03_CODE"));
    }

    void aWordIsFoundInTheFolder() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_Right, {});
        press(*grid, Qt::Key_Right, {});
        type(*grid, "Гвозди 510");
        press(*grid, Qt::Key_H);
        QCOMPARE(grid->dataSource().fixedKeyValues(), std::vector<std::u16string>{u"21"});
        type(*grid, "Гвозди 52");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 520"));
        press(*grid, Qt::Key_Down, {});
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 521"));
        // What lies in another folder is not found: the word's first letters lead to the first row.
        type(*grid, "Гвозди 7");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 501"));
        press(*grid, Qt::Key_Escape, {});
        press(*grid, Qt::Key_Up);
        press(*grid, Qt::Key_Home);
        // Folders are found behind things.
        type(*grid, "Папка 3");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Папка 3"));
        QVERIFY(host_.calls.empty());
    }

    void theMouseDoesNotChooseThePath() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        press(*grid, Qt::Key_H);
        QTest::mouseClick(grid.get(), Qt::LeftButton, {}, grid->cellRectangle(1, 1).center());
        QCOMPARE(grid->currentRow(), 2U);
        QVERIFY(grid->getId() > 0);
    }

    // --- Failures

    void theWindowMayGoWhileAStatementFails() {
        for (const auto key : {Qt::Key_H, Qt::Key_Down, Qt::Key_Up}) {
            makeGoods(100);
            QPointer<Browse> grid = shown<Browse>(20).release();
            press(*grid, Qt::Key_End);
            if (key != Qt::Key_H) {
                press(*grid, Qt::Key_H);
            }
            if (key == Qt::Key_Up) {
                press(*grid, Qt::Key_Down);
            }
            sql("alter table Ref03 rename to Gone");
            host_.atBox = [&] { delete grid.data(); };
            press(*grid, key);
            QVERIFY2(grid.isNull(), qPrintable(QString::number(key)));
        }
    }
};

QTEST_MAIN(browseDirectory)
#include "browseDirectory.moc"
