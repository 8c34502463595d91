#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// The Jet dialect of the program's SQL, read by a small tokenizer and written back in SQLite's:
// "..." and '...' are string literals, [name] a name, #m/d/yyyy# a date, True/False 1/0, & joins texts,
// and DELETE * FROM drops its star. LIKE stays LIKE: the engine's own function reads Jet's wildcards.
namespace dao {

// A text the translator cannot read; the caller reports it with its Jet number (3075 or 3077).
struct JetSyntaxError {
    QString detail;
};

struct Token {
    enum class Kind { Word, Name, String, Number, Date, Symbol };
    Kind kind;
    QString text; // Word as written, Name without brackets, String's value, Date as ISO, Symbol itself

    bool isWord(const char* keyword) const;
    bool isSymbol(const char* symbol) const;
    bool isIdentifier() const { return kind == Kind::Word || kind == Kind::Name; }
};

std::vector<Token> tokenize(const QString& jet);

// SQLite text for a whole statement, or for an expression (a criterion, a WHERE clause).
QString translate_statement(const QString& jet);
QString translate_tokens(const std::vector<Token>& tokens, size_t begin, size_t end);

// An identifier as SQLite reads it, whatever it holds.
QString quote_name(const QString& name);

struct OrderTerm {
    QString column;
    bool descending = false;
};

// A single-table SELECT of the dialect, or a bare table name: what a dynaset can stand on.
struct SelectQuery {
    QString table;
    QStringList columns; // empty for *
    QString where;       // SQLite text, empty when none
    std::vector<OrderTerm> order;
};

SelectQuery parse_select(const QString& jet);

} // namespace dao
