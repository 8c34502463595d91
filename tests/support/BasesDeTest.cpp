#include "support/BasesDeTest.h"

#include "support/BaseDirecte.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

QString créer_base_de_test(const QString& chemin, const std::optional<QString>& code,
                           const QString& en_plus) {
    QFile::remove(chemin);
    QString sql = u"CREATE TABLE passe (passe VARCHAR(10));"_s;
    if (code)
        sql += u"INSERT INTO passe (passe) VALUES ('%1');"_s.arg(QString(*code).replace('\'', "''"));
    sql_direct(chemin, sql + en_plus);
    return chemin;
}

DossierCourant::DossierCourant(const QString& dossier) : ancien_(QDir::currentPath()) {
    QDir::setCurrent(dossier);
}

DossierCourant::~DossierCourant() {
    QDir::setCurrent(ancien_);
}
