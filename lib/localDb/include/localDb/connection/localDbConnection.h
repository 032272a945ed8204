// A hold on a named connection to a data file.
//
// Connections are known by name, as in the toolkit's own registry, and the last hold on one removes
// it from there. A connection belongs to the thread that first held its name: the toolkit allows
// its use on no other. A hold may be made and dropped on any thread, and asks before it is used
// whether it is at home.
//
// A connection opens only a file that was chosen for it; without one the driver would open an
// unnamed file of its own and a program would write into nothing.
#pragma once

#include <QSqlDatabase>
#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class localDbConnection {
public:
    // The one connection of the browse windows and the database manager.
    static constexpr std::u16string_view mainName = u"dbMain";

    // "db-20261115:10:26:58", for a script object made now. Two made on one thread within one
    // second get one name, and so share the connection. Where that name belongs to another thread,
    // "#2", "#3" and so on stand behind it.
    static std::u16string nameForObject();

    // Whether anybody holds a connection of that name.
    static bool exists(std::u16string_view name);
    // Whether the calling thread may use the connection of that name.
    static bool isHere(std::u16string_view name);

    // Makes the connection where nobody holds one of that name.
    explicit localDbConnection(std::u16string_view name);
    ~localDbConnection();
    localDbConnection(const localDbConnection&) = delete;
    localDbConnection& operator=(const localDbConnection&) = delete;

    const std::u16string& name() const { return name_; }

    // The toolkit's handle, open or not. Only at home, which a debug build asserts. Whoever keeps a
    // copy must drop it before the hold.
    static QSqlDatabase database(std::u16string_view name);
    QSqlDatabase database() const { return database(name_); }

    // Chooses a file and opens it. Open for that file already: stays open, with all that is under
    // way. Open for another, or for one that has been replaced since: closes it first. Tells
    // nobody. False also away from home.
    static bool open(std::u16string_view name, std::u16string_view fileName);
    // Opens the file that was chosen, if it is not open or has been replaced since. False where
    // none was chosen, too, and where that file is gone.
    static bool open(std::u16string_view name);
    bool open() const { return open(name_); }

    // Whether the chosen file can be read; opens it when it has to. A locked one is waited for,
    // which the driver's own lists do not do. A box tells of one that cannot be read.
    bool isReadable() const;
    // The names of the tables, as the driver lists them. Nothing when the file cannot be read.
    std::optional<std::vector<std::u16string>> tables() const;

private:
    std::u16string name_;
    QString known_;  // the name as the toolkit has it
};
