#include "platform/report/Layout.h"

#include "platform/report/ReportErrors.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <map>

using namespace Qt::StringLiterals;

namespace {

class LineError {
public:
    QString reason;
};

double number(const QString& text) {
    bool ok = false;
    QString t = text.trimmed();
    t.replace(u',', u'.');
    const double value = t.toDouble(&ok);
    if (!ok || value < 0)
        throw LineError{u"« %1 » n'est pas un nombre"_s.arg(text.trimmed())};
    return value;
}

std::vector<double> numbers(const QString& text, size_t count) {
    const QStringList parts = text.simplified().split(u' ', Qt::SkipEmptyParts);
    if (static_cast<size_t>(parts.size()) != count)
        throw LineError{u"%1 nombres attendus, séparés par des espaces"_s.arg(count)};
    std::vector<double> values;
    for (const QString& p : parts)
        values.push_back(number(p));
    return values;
}

// Parts separated by |, but for the | of a place's filter ({champ|majuscules}).
QStringList pieces(const QString& text, qsizetype least, qsizetype most) {
    QStringList parts{QString()};
    int depth = 0;
    for (const QChar c : text) {
        depth += c == u'{' ? 1 : c == u'}' && depth > 0 ? -1 : 0;
        if (c == u'|' && depth == 0)
            parts << QString();
        else
            parts.back() += c;
    }
    for (QString& p : parts)
        p = p.trimmed();
    if (parts.size() < least || parts.size() > most)
        throw LineError{least == most ? u"%1 parties séparées par | attendues"_s.arg(least)
                                      : u"%1 à %2 parties séparées par | attendues"_s.arg(least).arg(most)};
    return parts;
}

Qt::Alignment alignment(const QString& word) {
    if (word == u"gauche")
        return Qt::AlignLeft;
    if (word == u"centre")
        return Qt::AlignHCenter;
    if (word == u"droite")
        return Qt::AlignRight;
    throw LineError{u"alignement « %1 » inconnu (gauche, centre ou droite)"_s.arg(word)};
}

TextStyle style(const QString& text) {
    TextStyle s;
    for (const QString& word : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (word == u"gras")
            s.bold = true;
        else if (word == u"italique")
            s.italic = true;
        else if (word == u"lignes")
            s.wrap = true;
        else if (word.front().isDigit())
            s.size = number(word);
        else
            s.align = alignment(word);
    }
    return s;
}

bool yesNo(const QString& text) {
    if (text == u"oui")
        return true;
    if (text == u"non")
        return false;
    throw LineError{u"oui ou non attendu"_s};
}

// table.column, or table.column|âge for the age in whole years that a date gives at the reference date.
QString field(const QString& text) {
    const QString f = text.trimmed();
    const QString name = f.section(u'|', 0, 0).trimmed();
    const qsizetype dot = name.indexOf(u'.');
    if (dot <= 0 || dot == name.size() - 1 || name.contains(u' '))
        throw LineError{u"un champ s'écrit table.colonne"_s};
    if (f.contains(u'|')) {
        if (f.section(u'|', 1).trimmed() != u"âge")
            throw LineError{u"seul |âge peut suivre un champ ici"_s};
        return name + u"|âge"_s;
    }
    return name;
}

// "aujourd'hui", "JJ/MM" or "JJ/MM/AAAA".
QString referenceDate(const QString& text) {
    if (text == u"aujourd'hui" || text == u"aujourd’hui")
        return u"aujourd'hui"_s;
    const QStringList parts = text.split(u'/');
    const bool withYear = parts.size() == 3;
    const QDate d(withYear ? parts[2].toInt() : 2000, parts.value(1).toInt(), parts.value(0).toInt());
    if ((parts.size() != 2 && !withYear) || !d.isValid())
        throw LineError{u"aujourd'hui, JJ/MM ou JJ/MM/AAAA attendu"_s};
    return text;
}

QPageSize paper(const QString& name) {
    static const std::map<QString, QPageSize::PageSizeId> known = {{u"A3"_s, QPageSize::A3},
                                                                   {u"A4"_s, QPageSize::A4},
                                                                   {u"A5"_s, QPageSize::A5},
                                                                   {u"Letter"_s, QPageSize::Letter}};
    const auto it = known.find(name);
    if (it == known.end())
        throw LineError{u"papier « %1 » inconnu (A3, A4, A5 ou Letter)"_s.arg(name)};
    return QPageSize(it->second);
}

QRectF rectangle(const QString& text) {
    const std::vector<double> v = numbers(text, 4);
    return {v[0], v[1], v[2], v[3]};
}

// One "key = value" line of a section.
void apply(Layout& l, const QString& section, const QString& key, const QString& value) {
    auto unknown = [&] { return LineError{u"« %1 » est inconnu dans [%2]"_s.arg(key, section)}; };
    if (section == u"état") {
        if (key == u"genre") {
            static const std::map<QString, Layout::Kind> kinds = {{u"liste"_s, Layout::Kind::List},
                                                                  {u"statistique"_s, Layout::Kind::Statistic},
                                                                  {u"étiquettes"_s, Layout::Kind::Labels},
                                                                  {u"fiche"_s, Layout::Kind::Sheet}};
            const auto it = kinds.find(value);
            if (it == kinds.end())
                throw LineError{
                    u"genre « %1 » inconnu (liste, statistique, étiquettes ou fiche)"_s.arg(value)};
            l.kind = it->second;
        } else if (key == u"titre") {
            l.title = value;
        } else if (key == u"papier") {
            l.pageSize = paper(value);
        } else if (key == u"orientation") {
            if (value != u"portrait" && value != u"paysage")
                throw LineError{u"portrait ou paysage attendu"_s};
            l.orientation = value == u"portrait" ? QPageLayout::Portrait : QPageLayout::Landscape;
        } else if (key == u"marges") {
            const std::vector<double> m = numbers(value, 4); // top, right, bottom, left
            l.margins = QMarginsF(m[3], m[0], m[1], m[2]);
        } else if (key == u"police") {
            l.fontFamilies.clear();
            for (const QString& f : value.split(u','))
                if (!f.trimmed().isEmpty())
                    l.fontFamilies << f.trimmed();
        } else if (key == u"taille") {
            l.fontSize = number(value);
        } else {
            throw unknown();
        }
    } else if (section == u"données") {
        if (key == u"table") {
            l.table = value;
        } else if (key == u"lien") {
            const QStringList sides = value.split(u'=');
            QStringList right = sides.value(1).simplified().split(u' ');
            if (sides.size() != 2 || (right.size() != 1 && (right.size() != 3 || right[1] != u"comme")))
                throw LineError{
                    u"un lien s'écrit table.colonne = autre_table.colonne, suivi au besoin de comme nom"_s};
            const QString joined = field(right[0]), table = joined.section(u'.', 0, 0);
            const QString alias = right.size() == 3 ? right[2] : table;
            if (l.tables().contains(alias))
                throw LineError{u"la table %1 est déjà lue : nommez-la autrement (comme nom)"_s.arg(alias)};
            l.links.push_back({table, alias, field(sides[0]), alias + u'.' + joined.section(u'.', 1)});
        } else if (key == u"tri") {
            const qsizetype according = value.indexOf(u" selon "_s);
            QStringList words = value.left(according).simplified().split(u' ');
            SortKey k{field(words.takeFirst()), false, false, {}};
            for (const QString& w : words) {
                if (w == u"numérique")
                    k.numeric = true;
                else if (w == u"décroissant")
                    k.descending = true;
                else
                    throw LineError{u"« %1 » : numérique, décroissant ou selon attendu"_s.arg(w)};
            }
            if (according >= 0)
                for (const QString& v : value.mid(according + 7).split(u','))
                    if (!v.trimmed().isEmpty())
                        k.order << v.trimmed();
            l.sort.push_back(k);
        } else if (key == u"filtre") {
            l.filter = value;
        } else if (key == u"date de référence") {
            l.referenceDate = referenceDate(value);
        } else if (key == u"groupe") {
            l.group = field(value);
        } else if (key == u"unique") {
            l.unique = field(value);
        } else {
            throw unknown();
        }
    } else if (section == u"en-tête" || section == u"pied") {
        QString* texts = section == u"en-tête" ? l.header : l.footer;
        if (key == u"gauche")
            texts[0] = value;
        else if (key == u"centre")
            texts[1] = value;
        else if (key == u"droite")
            texts[2] = value;
        else
            throw unknown();
    } else if (section == u"liste") {
        if (key == u"colonne") {
            const QStringList p = pieces(value, 4, 4);
            QStringList how = p[2].simplified().split(u' ');
            const bool wrap = how.removeAll(u"lignes"_s) > 0;
            l.columns.push_back({p[0], number(p[1]), alignment(how.join(u' ')), wrap, p[3]});
        } else if (key == u"grille") {
            l.grid = yesNo(value);
        } else if (key == u"jours du mois") {
            l.dayColumnsAt = yesNo(value) ? static_cast<int>(l.columns.size()) : -1;
        } else if (key == u"hauteur de ligne") {
            l.rowHeight = number(value);
        } else if (key == u"en-tête de groupe") {
            l.groupHeader = value;
        } else if (key == u"pied de groupe") {
            l.groupFooter = value;
        } else if (key == u"saut de page par groupe") {
            l.pageBreakPerGroup = yesNo(value);
        } else {
            throw unknown();
        }
    } else if (section == u"statistique") {
        if (key == u"compter") {
            l.countField = field(value);
        } else if (key == u"libellé") {
            l.countHeading = value;
        } else if (key == u"valeur") {
            l.valueText = value;
        } else if (key == u"étiquette") {
            l.chartText = value;
        } else if (key == u"sous-titre") {
            l.subtitle = value;
        } else if (key == u"ordre") {
            if (value != u"effectif" && value != u"tri")
                throw LineError{u"effectif ou tri attendu"_s};
            l.byCount = value == u"effectif";
        } else if (key == u"vide") {
            l.emptyValue = value;
        } else if (key == u"graphique") {
            if (value == u"barres")
                l.chart = Layout::Chart::Bars;
            else if (value == u"secteurs")
                l.chart = Layout::Chart::Pie;
            else if (value == u"aucun")
                l.chart = Layout::Chart::None;
            else
                throw LineError{u"barres, secteurs ou aucun attendu"_s};
        } else {
            throw unknown();
        }
    } else if (section == u"étiquettes") {
        if (key == u"colonnes")
            l.labelColumns = std::max(1, static_cast<int>(number(value)));
        else if (key == u"lignes")
            l.labelRows = std::max(1, static_cast<int>(number(value)));
        else if (key == u"largeur")
            l.labelWidth = number(value);
        else if (key == u"hauteur")
            l.labelHeight = number(value);
        else if (key == u"marge intérieure")
            l.labelPadding = number(value);
        else if (key == u"ligne") {
            const QStringList p = pieces(value, 1, 2);
            l.labelStyles.push_back(p.size() == 2 ? std::optional(style(p[0])) : std::nullopt);
            l.labelLines << p.back();
        } else
            throw unknown();
    } else if (section == u"lignes") {
        if (key == u"valeurs") {
            l.rowSet.names = pieces(value, 1, 100);
        } else if (key == u"ligne") {
            const QStringList p = pieces(value, 1, 100);
            if (p.size() != l.rowSet.names.size())
                throw LineError{u"une ligne donne autant de parties que valeurs en nomme"_s};
            for (const QString& part : p)
                if (part.contains(u'{') && !(part.startsWith(u'{') && part.endsWith(u'}') &&
                                             part.count(u'{') == 1 && !part.contains(u'|')))
                    throw LineError{u"chaque partie est un champ {table.colonne} seul ou un texte"_s};
            l.rowSet.lines.push_back(p);
        } else {
            throw unknown();
        }
    } else if (section == u"fiche") {
        SheetElement e;
        if (key == u"texte") {
            const QStringList p = pieces(value, 3, 3);
            e = {SheetElement::Kind::Text, rectangle(p[0]), {}, style(p[1]), {}, p[2]};
        } else if (key == u"cadre") {
            e.kind = SheetElement::Kind::Box;
            e.rect = rectangle(value);
        } else if (key == u"trait") {
            const std::vector<double> v = numbers(value, 4);
            e.kind = SheetElement::Kind::Line;
            e.line = QLineF(v[0], v[1], v[2], v[3]);
        } else if (key == u"départ") {
            const std::vector<double> v = numbers(value, 3);
            e.kind = SheetElement::Kind::FlowStart;
            e.rect = QRectF(v[0], v[1], v[2], 0);
        } else if (key == u"suite") {
            const QStringList p = pieces(value, 3, 3);
            e = {SheetElement::Kind::Flow, {}, {}, style(p[1]), {}, p[2]};
            e.spaceAbove = number(p[0]);
        } else if (key == u"image") {
            const QStringList p = pieces(value, 2, 2);
            e = {SheetElement::Kind::Image, rectangle(p[0]), {}, {}, {}, p[1]};
        } else if (key == u"champ") {
            const QStringList p = pieces(value, 2, 3);
            const std::vector<double> v = numbers(p[0], 3);
            e = {SheetElement::Kind::Field, QRectF(v[0], v[1], v[2], 0), {}, {}, p[1], p.value(2)};
        } else {
            throw unknown();
        }
        l.elements.push_back(e);
    } else {
        throw LineError{u"section [%1] inconnue"_s.arg(section)};
    }
}

} // namespace

QPageLayout Layout::pageLayout() const {
    return QPageLayout(pageSize, orientation, margins, QPageLayout::Millimeter);
}

QStringList Layout::tables() const {
    QStringList t;
    if (!table.isEmpty())
        t << table;
    for (const TableLink& link : links)
        t << link.alias;
    return t;
}

QDate Layout::reference(const QDate& today) const {
    const QStringList parts = referenceDate.split(u'/');
    if (parts.size() == 3)
        return QDate(parts[2].toInt(), parts[1].toInt(), parts[0].toInt());
    if (parts.size() != 2)
        return today;
    // The school year runs from the first of September: a day of its autumn falls in the year it began.
    const int start = today.month() >= 9 ? today.year() : today.year() - 1;
    const int month = parts[1].toInt(), year = month >= 9 ? start : start + 1;
    const QDate d(year, month, parts[0].toInt());
    return d.isValid() ? d : QDate(year, month, 28); // the 29th of February of a common year
}

Layout parseLayout(const QString& text, const QString& path) {
    Layout l;
    l.path = path;
    QString section;
    int number = 0, last = 1;
    for (const QString& raw : text.split(u'\n')) {
        ++number;
        const QString line = raw.trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        last = number;
        try {
            if (line.startsWith(u'[')) {
                if (!line.endsWith(u']'))
                    throw LineError{u"une section s'écrit [nom]"_s};
                section = line.mid(1, line.size() - 2).trimmed();
                continue;
            }
            const qsizetype equals = line.indexOf(u'=');
            if (equals <= 0)
                throw LineError{u"une ligne s'écrit clé = valeur"_s};
            if (section.isEmpty())
                throw LineError{u"une section [nom] doit précéder"_s};
            apply(l, section, line.left(equals).simplified(), line.mid(equals + 1).trimmed());
        } catch (const LineError& e) {
            throw report_error::layoutInvalid(path, number, e.reason);
        }
    }
    const bool needsTable = l.kind != Layout::Kind::Sheet;
    if (needsTable && l.table.isEmpty())
        throw report_error::layoutInvalid(path, last, u"[données] ne nomme aucune table"_s);
    if (l.kind == Layout::Kind::List && l.columns.empty())
        throw report_error::layoutInvalid(path, last, u"[liste] n'a aucune colonne"_s);
    if (!l.rowSet.names.isEmpty() && l.rowSet.lines.empty())
        throw report_error::layoutInvalid(path, last, u"[lignes] n'a aucune ligne"_s);
    if (l.kind == Layout::Kind::Statistic && l.countField.isEmpty())
        throw report_error::layoutInvalid(path, last, u"[statistique] ne dit pas quoi compter"_s);
    return l;
}

Layout readLayout(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        throw report_error::layoutMissing(path);
    const QByteArray bytes = file.readAll();
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    if (utf8.hasError())
        throw report_error::layoutInvalid(path, 1, u"le texte n'est pas en UTF-8"_s);
    text.replace(u"\r\n"_s, u"\n"_s);
    return parseLayout(text, path);
}
