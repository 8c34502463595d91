#include "platform/dao/JetSql.h"

#include "platform/dao/JetDate.h"

using namespace Qt::StringLiterals;

namespace dao {
namespace {

[[noreturn]] void syntax(const QString& detail) {
    throw JetSyntaxError{detail};
}

bool is_word_start(QChar c) {
    return c.isLetter() || c == u'_' || c.unicode() >= 0x80;
}
bool is_word_char(QChar c) {
    return is_word_start(c) || c.isDigit();
}

QString read_quoted(const QString& s, qsizetype& i, QChar close) {
    QString value;
    for (++i; i < s.size(); ++i) {
        if (s[i] == close) {
            if (close != u']' && i + 1 < s.size() && s[i + 1] == close) {
                value += close;
                ++i;
                continue;
            }
            ++i;
            return value;
        }
        value += s[i];
    }
    syntax(u"texte non terminé"_s);
}

// Jet's date literals are month first: #9/1/2015# is the first of September.
QString read_date(const QString& s, qsizetype& i) {
    const qsizetype close = s.indexOf(u'#', i + 1);
    if (close < 0)
        syntax(u"date non terminée"_s);
    const QString inside = s.mid(i + 1, close - i - 1).trimmed();
    i = close + 1;
    const QStringList parts = inside.split(u'/');
    std::optional<QDate> date;
    if (parts.size() == 3)
        date = parse_user_date(parts[1] + u'/' + parts[0] + u'/' + parts[2]);
    else
        date = from_stored_date(inside);
    if (!date)
        syntax(u"date non valide"_s);
    return to_stored_date(*date);
}

QString quote_string(const QString& value) {
    QString out = value;
    out.replace(u'\'', u"''"_s);
    return u'\'' + out + u'\'';
}

} // namespace

bool Token::isWord(const char* keyword) const {
    return kind == Kind::Word && text.compare(QLatin1String(keyword), Qt::CaseInsensitive) == 0;
}

bool Token::isSymbol(const char* symbol) const {
    return kind == Kind::Symbol && text == QLatin1String(symbol);
}

std::vector<Token> tokenize(const QString& s) {
    std::vector<Token> tokens;
    qsizetype i = 0;
    while (i < s.size()) {
        const QChar c = s[i];
        if (c.isSpace()) {
            ++i;
        } else if (c == u'"' || c == u'\'') {
            tokens.push_back({Token::Kind::String, read_quoted(s, i, c)});
        } else if (c == u'[') {
            const QString name = read_quoted(s, i, u']');
            if (name.isEmpty())
                syntax(u"nom vide"_s);
            tokens.push_back({Token::Kind::Name, name});
        } else if (c == u'#') {
            tokens.push_back({Token::Kind::Date, read_date(s, i)});
        } else if (c.isDigit()) {
            const qsizetype start = i;
            while (i < s.size() && (s[i].isDigit() || s[i] == u'.'))
                ++i;
            tokens.push_back({Token::Kind::Number, s.mid(start, i - start)});
        } else if (is_word_start(c)) {
            const qsizetype start = i;
            while (i < s.size() && is_word_char(s[i]))
                ++i;
            tokens.push_back({Token::Kind::Word, s.mid(start, i - start)});
        } else {
            const QString two = s.mid(i, 2);
            if (two == u"<>" || two == u"<=" || two == u">=") {
                tokens.push_back({Token::Kind::Symbol, two});
                i += 2;
            } else if (u"=<>*(),.+-/&;"_s.contains(c)) {
                tokens.push_back({Token::Kind::Symbol, QString(c)});
                ++i;
            } else {
                syntax(u"caractère inattendu « %1 »"_s.arg(c));
            }
        }
    }
    // A closing semicolon is allowed, a second statement is not.
    if (!tokens.empty() && tokens.back().isSymbol(";"))
        tokens.pop_back();
    for (const Token& t : tokens)
        if (t.isSymbol(";"))
            syntax(u"plusieurs instructions"_s);
    return tokens;
}

QString quote_name(const QString& name) {
    QString out = name;
    out.replace(u'"', u"\"\""_s);
    return u'"' + out + u'"';
}

QString translate_tokens(const std::vector<Token>& tokens, size_t begin, size_t end) {
    QStringList out;
    int depth = 0;
    for (size_t i = begin; i < end; ++i) {
        const Token& t = tokens[i];
        switch (t.kind) {
        case Token::Kind::String:
            out << quote_string(t.text);
            break;
        case Token::Kind::Date:
            out << quote_string(t.text);
            break;
        case Token::Kind::Name:
            out << quote_name(t.text);
            break;
        case Token::Kind::Number:
            out << t.text;
            break;
        case Token::Kind::Word:
            if (t.isWord("true"))
                out << u"1"_s;
            else if (t.isWord("false"))
                out << u"0"_s;
            else if (t.isWord("mod"))
                out << u"%"_s;
            else if (t.isWord("distinctrow"))
                out << u"DISTINCT"_s;
            else
                out << t.text;
            break;
        case Token::Kind::Symbol:
            if (t.isSymbol("("))
                ++depth;
            if (t.isSymbol(")") && --depth < 0)
                syntax(u"parenthèse fermante en trop"_s);
            // DELETE * FROM and DELETE table.* FROM: SQLite wants no star.
            if (t.isSymbol("*") && i > begin && tokens[i - 1].isWord("delete"))
                break;
            if (t.isSymbol("*") && i >= begin + 3 && tokens[i - 1].isSymbol(".") &&
                tokens[i - 3].isWord("delete")) {
                out.removeLast();
                out.removeLast();
                break;
            }
            out << (t.isSymbol("&") ? u"||"_s : t.text);
            break;
        }
    }
    if (depth != 0)
        syntax(u"parenthèse non fermée"_s);
    return out.join(u' ');
}

QString translate_statement(const QString& jet) {
    const std::vector<Token> tokens = tokenize(jet);
    if (tokens.empty())
        syntax(u"instruction vide"_s);
    return translate_tokens(tokens, 0, tokens.size());
}

namespace {

// name, or table.name; returns the column part and moves i past it.
QString read_column(const std::vector<Token>& t, size_t& i) {
    if (i >= t.size() || !t[i].isIdentifier())
        syntax(u"nom de colonne attendu"_s);
    QString name = t[i++].text;
    if (i + 1 < t.size() && t[i].isSymbol(".") && t[i + 1].isIdentifier()) {
        name = t[i + 1].text;
        i += 2;
    }
    return name;
}

bool is_order_by(const std::vector<Token>& t, size_t i) {
    return i + 1 < t.size() && t[i].isWord("order") && t[i + 1].isWord("by");
}

} // namespace

SelectQuery parse_select(const QString& jet) {
    const std::vector<Token> t = tokenize(jet);
    SelectQuery q;
    if (t.size() == 1 && t[0].isIdentifier() && !t[0].isWord("select")) {
        q.table = t[0].text;
        return q;
    }
    size_t i = 0;
    if (t.empty() || !t[i++].isWord("select"))
        syntax(u"SELECT attendu"_s);
    if (i < t.size() && t[i].isSymbol("*")) {
        ++i;
    } else {
        for (;;) {
            if (i + 2 < t.size() && t[i].isIdentifier() && t[i + 1].isSymbol(".") && t[i + 2].isSymbol("*")) {
                i += 3;
            } else {
                q.columns << read_column(t, i);
            }
            if (i < t.size() && t[i].isSymbol(",")) {
                ++i;
                continue;
            }
            break;
        }
    }
    if (i >= t.size() || !t[i++].isWord("from"))
        syntax(u"FROM attendu"_s);
    if (i >= t.size() || !t[i].isIdentifier())
        syntax(u"nom de table attendu"_s);
    q.table = t[i++].text;
    if (i < t.size() && t[i].isWord("where")) {
        const size_t start = ++i;
        int depth = 0;
        while (i < t.size() && !(depth == 0 && is_order_by(t, i))) {
            depth += t[i].isSymbol("(") ? 1 : t[i].isSymbol(")") ? -1 : 0;
            ++i;
        }
        if (i == start)
            syntax(u"critère vide"_s);
        q.where = translate_tokens(t, start, i);
    }
    if (is_order_by(t, i)) {
        i += 2;
        for (;;) {
            OrderTerm term{read_column(t, i)};
            if (i < t.size() && (t[i].isWord("asc") || t[i].isWord("desc")))
                term.descending = t[i++].isWord("desc");
            q.order.push_back(term);
            if (i < t.size() && t[i].isSymbol(",")) {
                ++i;
                continue;
            }
            break;
        }
    }
    if (i != t.size())
        syntax(u"texte inattendu après la requête"_s);
    return q;
}

} // namespace dao
