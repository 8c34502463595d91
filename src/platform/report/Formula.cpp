#include "platform/report/Formula.h"

#include "platform/report/ReportErrors.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Token {
    enum class Kind { Field, Text, Word, Symbol, End };
    Kind kind;
    QString text;  // a field's "table.column", a text's value, a word or a symbol
    QString table; // fields only
    QString column;
    qsizetype position = 0;
};

class Refusal {
public:
    Refusal(QString reason, qsizetype position) : reason(std::move(reason)), position(position) {}
    QString reason;
    qsizetype position;
};

bool isNameChar(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

std::vector<Token> tokenize(const QString& formula) {
    std::vector<Token> tokens;
    qsizetype i = 0;
    const qsizetype n = formula.size();
    while (i < n) {
        const QChar c = formula[i];
        if (c.isSpace()) {
            ++i;
            continue;
        }
        const qsizetype start = i;
        if (c == u'"') {
            const qsizetype close = formula.indexOf(u'"', i + 1);
            if (close < 0)
                throw Refusal(u"texte sans guillemet de fin"_s, start);
            tokens.push_back({Token::Kind::Text, formula.mid(i + 1, close - i - 1), {}, {}, start});
            i = close + 1;
        } else if (c == u'{') {
            const qsizetype close = formula.indexOf(u'}', i + 1);
            if (close < 0)
                throw Refusal(u"champ sans accolade de fin"_s, start);
            const QString inside = formula.mid(i + 1, close - i - 1).trimmed();
            const qsizetype dot = inside.indexOf(u'.');
            if (dot <= 0 || dot == inside.size() - 1)
                throw Refusal(u"un champ s'écrit {table.colonne}"_s, start);
            tokens.push_back({Token::Kind::Field, inside, inside.left(dot).trimmed(),
                              inside.mid(dot + 1).trimmed(), start});
            i = close + 1;
        } else if (isNameChar(c)) {
            while (i < n && isNameChar(formula[i]))
                ++i;
            tokens.push_back({Token::Kind::Word, formula.mid(start, i - start), {}, {}, start});
        } else if ((c == u'<' || c == u'>') && i + 1 < n &&
                   (formula[i + 1] == u'=' || (c == u'<' && formula[i + 1] == u'>'))) {
            tokens.push_back({Token::Kind::Symbol, formula.mid(i, 2), {}, {}, start});
            i += 2;
        } else if (c == u'=' || c == u'(' || c == u')' || c == u'<' || c == u'>') {
            tokens.push_back({Token::Kind::Symbol, QString(c), {}, {}, start});
            ++i;
        } else {
            throw Refusal(u"caractère inattendu « %1 »"_s.arg(c), start);
        }
    }
    tokens.push_back({Token::Kind::End, {}, {}, {}, n});
    return tokens;
}

// A piece of the condition as it is built: its SQL, its values and what kind of value it gives.
enum class Kind { Text, Boolean, Date, Number };

struct Piece {
    QString sql;
    QVariantList values;
    Kind kind;
    bool isField = false;
    bool exact = false;
};

Kind kindOf(FieldType type) {
    switch (type) {
    case FieldType::Boolean:
        return Kind::Boolean;
    case FieldType::Date:
        return Kind::Date;
    case FieldType::Number:
        return Kind::Number;
    default:
        return Kind::Text;
    }
}

class Parser {
public:
    Parser(std::vector<Token> tokens, const FieldResolver& resolve)
        : tokens_(std::move(tokens)), resolve_(resolve) {}

    Piece formula() {
        Piece p = disjunction();
        if (current().kind != Token::Kind::End)
            throw Refusal(u"« %1 » est de trop"_s.arg(shown(current())), current().position);
        return condition(p, 0);
    }

private:
    const Token& current() const { return tokens_[index_]; }
    bool isWord(const char* word) const {
        return current().kind == Token::Kind::Word &&
               current().text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(const char* symbol) const {
        return current().kind == Token::Kind::Symbol && current().text == QLatin1StringView(symbol);
    }
    static QString shown(const Token& t) {
        switch (t.kind) {
        case Token::Kind::Text:
            return u"\"%1\""_s.arg(t.text);
        case Token::Kind::Field:
            return u"{%1}"_s.arg(t.text);
        case Token::Kind::End:
            return u"la fin"_s;
        default:
            return t.text;
        }
    }

    // A piece used as a condition must be a yes/no value.
    static Piece condition(Piece p, qsizetype position) {
        if (p.kind != Kind::Boolean)
            throw Refusal(u"une condition doit être vraie ou fausse"_s, position);
        if (p.isField)
            p.sql = u"(%1 <> 0)"_s.arg(p.sql);
        p.isField = false;
        return p;
    }

    Piece disjunction() {
        return chain("OR", [this] { return conjunction(); });
    }
    Piece conjunction() {
        return chain("AND", [this] { return negation(); });
    }

    template <class Next> Piece chain(const char* keyword, Next next) {
        qsizetype position = current().position;
        Piece left = next();
        while (isWord(keyword)) {
            left = condition(left, position);
            ++index_;
            position = current().position;
            Piece right = condition(next(), position);
            left.sql = u"(%1 %2 %3)"_s.arg(left.sql, QLatin1StringView(keyword), right.sql);
            left.values += right.values;
        }
        return left;
    }

    Piece negation() {
        if (!isWord("NOT"))
            return comparison();
        ++index_;
        const qsizetype position = current().position;
        Piece p = condition(negation(), position);
        p.sql = u"(NOT %1)"_s.arg(p.sql);
        return p;
    }

    Piece comparison() {
        const qsizetype position = current().position;
        Piece left = operand();
        const bool equality = isSymbol("=") || isSymbol("<>");
        if (!equality && !isSymbol("<") && !isSymbol("<=") && !isSymbol(">") && !isSymbol(">="))
            return left;
        const QString op = current().text;
        ++index_;
        Piece right = operand();
        if (!left.isField && !right.isField)
            throw Refusal(u"une comparaison porte sur un champ"_s, position);
        if (left.kind != right.kind)
            throw Refusal(u"les deux côtés de « %1 » ne sont pas de même nature"_s.arg(op), position);
        if (!equality && left.kind == Kind::Boolean)
            throw Refusal(u"« %1 » ne compare pas oui et non"_s.arg(op), position);
        Piece result{u"(%1 %2 %3)"_s.arg(comparable(left), op, comparable(right)), left.values + right.values,
                     Kind::Boolean};
        return result;
    }

    // An empty field compares as an empty text (or as No), as the user sees it on the screen.
    static QString comparable(const Piece& p) {
        if (!p.isField)
            return p.sql;
        switch (p.kind) {
        case Kind::Text:
            return u"IFNULL(%1, '') COLLATE %2"_s.arg(p.sql, p.exact ? u"BINARY"_s : u"FR"_s);
        case Kind::Boolean:
            return u"IFNULL(%1, 0)"_s.arg(p.sql);
        default:
            return p.sql;
        }
    }

    Piece operand() {
        const Token t = current();
        switch (t.kind) {
        case Token::Kind::Field: {
            const std::optional<FormulaField> field = resolve_(t.table, t.column);
            if (!field)
                throw Refusal(u"le champ {%1} est inconnu de cet état"_s.arg(t.text), t.position);
            ++index_;
            return {field->sql, {}, kindOf(field->type), true, field->exact};
        }
        case Token::Kind::Text:
            ++index_;
            return {u"?"_s, {t.text}, Kind::Text};
        case Token::Kind::Word:
            if (bool whole = false; t.text.toLongLong(&whole), whole && t.text.front().isDigit()) {
                ++index_;
                return {u"?"_s, {t.text.toLongLong()}, Kind::Number};
            }
            if (isWord("True") || isWord("False")) {
                ++index_;
                const bool yes = t.text.compare(u"True"_s, Qt::CaseInsensitive) == 0;
                return {u"?"_s, {qlonglong(yes ? 1 : 0)}, Kind::Boolean};
            }
            break;
        case Token::Kind::Symbol:
            if (t.text == u"(") {
                ++index_;
                Piece inner = disjunction();
                if (!isSymbol(")"))
                    throw Refusal(u"parenthèse non fermée"_s, current().position);
                ++index_;
                inner.sql = u"(%1)"_s.arg(inner.sql);
                return inner;
            }
            break;
        case Token::Kind::End:
            throw Refusal(u"la formule s'arrête trop tôt"_s, t.position);
        }
        throw Refusal(u"« %1 » est inattendu"_s.arg(shown(t)), t.position);
    }

    std::vector<Token> tokens_;
    size_t index_ = 0;
    const FieldResolver& resolve_;
};

VbError refused(const QString& formula, const Refusal& r) {
    return report_error::formulaRefused(formula, u"%1 (caractère %2)"_s.arg(r.reason).arg(r.position + 1));
}

} // namespace

SqlCondition translateSelection(const QString& formula, const FieldResolver& resolve) {
    if (formula.trimmed().isEmpty())
        return {};
    try {
        Piece p = Parser(tokenize(formula), resolve).formula();
        return {p.sql, p.values};
    } catch (const Refusal& r) {
        throw refused(formula, r);
    }
}

std::optional<NamedFormula> parseNamedFormula(const QString& text) {
    if (text.isEmpty())
        return std::nullopt;
    try {
        const std::vector<Token> tokens = tokenize(text);
        if (tokens.size() != 4 || tokens[0].kind != Token::Kind::Word ||
            tokens[1].kind != Token::Kind::Symbol || tokens[1].text != u"=")
            throw Refusal(u"une formule nommée s'écrit nom= \"valeur\""_s, 0);
        if (tokens[2].kind != Token::Kind::Text)
            throw Refusal(u"la valeur doit être un texte entre guillemets"_s, tokens[2].position);
        return NamedFormula{tokens[0].text, tokens[2].text};
    } catch (const Refusal& r) {
        throw refused(text, r);
    }
}
