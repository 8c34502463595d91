#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>
#include <map>

// A test on a fresh copy of the template, opened.
class StoreTest : public ::testing::Test {
protected:
    WorkFolder dossier;
    const QString chemin = copie_du_modèle(dossier);
    std::shared_ptr<Database> db = Database::open(chemin);

    // Adds a row through a recordset, as a bound screen would.
    void add(const QString& table, const std::map<QString, QVariant>& values) {
        auto rs = db->OpenRecordset(table);
        rs->AddNew();
        for (const auto& [column, value] : values)
            rs->setField(column, value);
        rs->Update();
    }

    void addPupil(const QString& matricule, const QString& nom, const QString& prénom = QString()) {
        add("élèves", {{"matricule", matricule}, {"nom_élève", nom}, {"prénom_élève", prénom}});
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
