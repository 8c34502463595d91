#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"
#include "support/Fixtures.h"
#include "support/TemplateBase.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <map>

// A reference for French order in tests, independent of the store's own table: letters without their
// accents, case folded.
inline QString french_key(const QString& text) {
    QString out;
    for (QChar c : text.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            out += c.toCaseFolded();
    return out;
}

// The twenty-one tables of the template, by their names.
inline QStringList template_tables() {
    return QString("adresses assertions assurances csp documents école équipe familles genres hôpitaux "
                   "inspection langues_vivantes médecins nationalités niveaux paramètres passe sexe "
                   "situations_familiales villes élèves")
        .split(' ');
}

// A test on a fresh copy of the template, opened.
class StoreTest : public ::testing::Test {
protected:
    TemplateBase base;
    std::shared_ptr<Database> db = Database::open(base.path());

    // Adds a row through a recordset, as a bound screen would.
    void add(const QString& table, const std::map<QString, QVariant>& values) {
        auto rs = db->OpenRecordset(table);
        rs->AddNew();
        for (const auto& [column, value] : values)
            rs->setField(column, value);
        rs->Update();
    }

    void addPupil(const QString& matricule, const QString& nom, const QString& prénom = QString()) {
        add(QStringLiteral("élèves"), {{QStringLiteral("matricule"), matricule},
                                       {QStringLiteral("nom_élève"), nom},
                                       {QStringLiteral("prénom_élève"), prénom}});
    }

    // The values of one column, row after row, in the recordset's own order.
    static QStringList values(Recordset& rs, const QString& column) {
        QStringList out;
        if (rs.RecordCount() == 0)
            return out;
        for (rs.MoveFirst(); !rs.isEOF(); rs.MoveNext())
            out << rs.field(column).toString();
        return out;
    }

    QStringList values(const QString& sql, const QString& column) {
        auto rs = db->OpenRecordset(sql);
        return values(*rs, column);
    }
};
