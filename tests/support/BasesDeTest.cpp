#include "support/BasesDeTest.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <sqlite3.h>

QString créer_base_de_test(const QString& chemin, const std::optional<QString>& code,
                           const QString& en_plus) {
    QFile::remove(chemin);
    sqlite3* db = nullptr;
    if (sqlite3_open(QFile::encodeName(chemin).constData(), &db) != SQLITE_OK) {
        ADD_FAILURE() << "Impossible de créer " << chemin.toStdString();
        sqlite3_close(db);
        return chemin;
    }
    QString sql = QStringLiteral("CREATE TABLE passe (passe VARCHAR(10));");
    if (code)
        sql += QStringLiteral("INSERT INTO passe (passe) VALUES ('%1');")
                   .arg(QString(*code).replace('\'', "''"));
    sql += en_plus;
    char* erreur = nullptr;
    if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &erreur) != SQLITE_OK)
        ADD_FAILURE() << "Base de test : " << (erreur ? erreur : "?");
    sqlite3_free(erreur);
    sqlite3_close(db);
    return chemin;
}

DossierCourant::DossierCourant(const QString& dossier) : ancien_(QDir::currentPath()) {
    QDir::setCurrent(dossier);
}

DossierCourant::~DossierCourant() {
    QDir::setCurrent(ancien_);
}
