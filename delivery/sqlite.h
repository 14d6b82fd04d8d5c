// A thin layer over SQLite: a database, its statements and transactions, which throw JournalError.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace korvel::delivery::sqlite {

/// A value that is bytes; a QByteArray is a text in UTF-8.
struct Blob
{
    const QByteArray &bytes;
};

/// An open database. Each failure says the file's name, why, and what to do.
class Database
{
public:
    /// Opens a file that is there, or an empty database in memory when the path is empty. What may
    /// not be written is opened to be read.
    explicit Database(const QString &path);

    /// Runs statements that give nothing, parted by semicolons.
    void run(const QByteArray &sql) const;

    /// Throws what went wrong last.
    [[noreturn]] void fail() const;
    /// Throws a text, behind the file's name.
    [[noreturn]] void fail(const QString &text) const;

    [[nodiscard]] bool inTransaction() const;
    [[nodiscard]] sqlite3 *handle() const { return database.get(); }

private:
    struct Close
    {
        void operator()(sqlite3 *database) const;
    };

    QString file;
    std::unique_ptr<sqlite3, Close> database;
};

/// A statement, and the row that it is at.
class Statement
{
public:
    Statement(Database &of, const QByteArray &sql);

    /// Begins anew with these values in the place of the question marks.
    template<typename... Values>
    Statement &with(const Values &...values)
    {
        begin();
        int place = 0;
        (bind(++place, values), ...);
        return *this;
    }

    /// Goes on to the next row; false when there is none.
    bool step();
    /// Runs to the end.
    void run();
    /// Whether there is a row with these values.
    template<typename... Values>
    bool has(const Values &...values)
    {
        const bool found = with(values...).step();
        begin(); // gives the lock back
        return found;
    }

    /// What a column of the row holds, counted from 0.
    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] QByteArray bytes(int column) const;

private:
    void begin();
    void bind(int place, qint64 value);
    void bind(int place, const QByteArray &value);
    void bind(int place, const Blob &value);
    void expect(int result);

    struct Finalize
    {
        void operator()(sqlite3_stmt *statement) const;
    };

    Database &database;
    std::unique_ptr<sqlite3_stmt, Finalize> statement;
};

/// The number that a query gives; 0 where it gives none.
qint64 numberOf(Database &database, const QByteArray &sql);

/// A transaction, which is undone unless it is committed.
class Transaction
{
public:
    enum class Kind {
        Read,  // one state of the database, whatever others write
        Write, // no other writer from the start
    };

    Transaction(Database &of, Kind kind);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /// On disk when it returns.
    void commit();

private:
    Database &database;
};

} // namespace korvel::delivery::sqlite
