// A table of any size in a grid, seen through the buffer of its data source.
//
// It holds no rows and knows no number of a row: its place in the table is a key
// (localDbtBrowsePosition). Keys within the buffer run no statement.
//
// A statement that fails opens a box, and while that is open a person may do all that windows
// allow; so every key leaves the widget alone once it has gone.
//
// On the windows' thread only, whose connection the data source must use; made under the turn.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "localDb/connection/localDbConnection.h"
#include "localDb/index/localDbDataSource200123.h"
#include "localVCL/grid/localVclGrid200123.h"

class localDbtBrowsePosition;

// A column that shows an expression of the data source, dataBuferColumn.
struct localDbtBrowseColumn : localVclGridColumn {
    // The index that sorts by it; found by idxName.
    const localDbDataSource200123::Index* idx = nullptr;
    // The same inside folders (localRefBrowseWidget200123).
    std::u16string idxPName = {};
    const localDbDataSource200123::Index* idxP = nullptr;
};

enum class localDbtBrowsePurpose {
    look,
    select,  // Return gives the record's id and closes the window
};

class localDbtBrowseWidget200123 : public localVclGrid200123 {
    Q_OBJECT

public:
    using DataSource = localDbDataSource200123;
    using Columns = std::vector<std::unique_ptr<localDbtBrowseColumn>>;

    // Shares the data source with its maker and holds the connection for as long as it lives.
    // Without columns it makes one for each expression.
    localDbtBrowseWidget200123(std::shared_ptr<DataSource> dataSource, Columns columns,
                               localDbtBrowsePurpose purpose, localContextUTF8* context = nullptr);
    // A single table with all of its fields. There must be a connection of that name.
    localDbtBrowseWidget200123(std::u16string_view connection, std::u16string_view table,
                               localDbtBrowsePurpose purpose);
    ~localDbtBrowseWidget200123() override;

    const DataSource& dataSource() const { return *dataSource_; }
    // The buffer row in the first data row of the screen, and the one under the cursor.
    std::uint32_t mRec1() const;
    std::uint32_t mCurRec() const;

    // Sorts the table by another index, around the record under the cursor. Nothing for a name that
    // is none.
    void idxSet(std::u16string_view name);
    // Goes to the first row whose value in the cursor's column begins with the text, by the index
    // of that column. False where it has none, and when there is no such row.
    virtual bool findFast(const QString& text);
    // The index of a column, counted from 0, in the present regime; empty where it has none.
    virtual std::u16string idxNameOfColumn(std::size_t column) const;
    // The id of the record under the cursor, 0 where there is none: the expression of the main
    // table's column id.
    qint64 getId() const;

    RowNumber rowNumber(unsigned row) const override;
    void cellEdit(unsigned row, unsigned column) override;
    bool find(const QString& text) override { return text.isEmpty() || findFast(text); }
    void scrollRowDown() override;
    void scrollRowUp() override;
    void scrollRows(int rows) override;
    void goToStart() override;
    void goToEnd() override;
    QList<Key> keys() const override;
    localValueDescription layoutAsValueListGet() override;

signals:
    // A record was chosen; its window closes. The receiver may do anything, the widget goes on its
    // own.
    void idSelectedSignal(long long int idValue);

protected:
    // What a browse looks through; a derived one brings its own.
    struct View {
        std::shared_ptr<DataSource> source;
        std::shared_ptr<localDbtBrowsePosition> position;
        std::unique_ptr<localVclGridRows> rows;
    };
    localDbtBrowseWidget200123(View view, Columns columns, localDbtBrowsePurpose purpose,
                               localContextUTF8* context);

    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void layoutApply(const localValueList& grid) override;

    localDbtBrowsePosition& position() const { return *position_; }
    // For work behind which the widget may be gone.
    const std::shared_ptr<localDbtBrowsePosition>& sharedPosition() const { return position_; }
    // The record of a grid's column; all columns of a browse are such.
    localDbtBrowseColumn& browseColumn(std::size_t number) const {
        return static_cast<localDbtBrowseColumn&>(*columns[number]);
    }
    // Does a move of the position and shows what has changed. The widget may have gone behind it.
    void move(const std::function<void()>& act);
    // The same for a key that moves: it ends the word that is searched for.
    void moveByKey(const std::function<void()>& act);
    // The cursor's column, in which a word is looked for; null where there is none.
    const localDbtBrowseColumn* searchColumn(const QString& text) const;
    // Whether the key was one of the browse.
    virtual bool browseKey(const QKeyEvent& event);
    // Finds the columns' indexes by their names.
    virtual void indexesFind();

private:
    bool selectKey();
    bool sortKey(int digit);
    void choose(qint64 id);
    void windowClose();
    void limitHeight();
    void keepCursorInSight();
    static View viewOf(std::shared_ptr<DataSource> source);
    static Columns columnsOfExpressions(const DataSource& source);

    std::shared_ptr<DataSource> dataSource_;
    std::unique_ptr<localDbConnection> connection_;
    std::shared_ptr<localDbtBrowsePosition> position_;
    bool isMoving_ = false;
};
