#include "support/BaseDirecte.h"

#include "platform/dao/Database.h"
#include "platform/errors/VbError.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

// One connection to the file for the span of one call.
struct Fichier {
    sqlite3* db = nullptr;
    explicit Fichier(const QString& chemin) {
        if (sqlite3_open(chemin.toUtf8().constData(), &db) != SQLITE_OK)
            ADD_FAILURE() << "ouverture impossible : " << chemin.toStdString();
    }
    ~Fichier() { sqlite3_close(db); }
};

} // namespace

void sql_direct(const QString& chemin, const QString& sql) {
    Fichier f(chemin);
    char* erreur = nullptr;
    if (sqlite3_exec(f.db, sql.toUtf8().constData(), nullptr, nullptr, &erreur) != SQLITE_OK) {
        ADD_FAILURE() << "SQL refusé : " << sql.toStdString() << " : " << (erreur ? erreur : "");
        sqlite3_free(erreur);
    }
}

QStringList colonne_du_fichier(const QString& chemin, const QString& table, const QString& colonne) {
    Fichier f(chemin);
    QStringList valeurs;
    sqlite3_stmt* requête = nullptr;
    const QString sql = u"SELECT \"%1\" FROM \"%2\" ORDER BY rowid"_s.arg(colonne, table);
    if (sqlite3_prepare_v2(f.db, sql.toUtf8().constData(), -1, &requête, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << "lecture impossible : " << sql.toStdString();
        return valeurs;
    }
    while (sqlite3_step(requête) == SQLITE_ROW) {
        const auto* texte = reinterpret_cast<const char*>(sqlite3_column_text(requête, 0));
        valeurs << (texte ? QString::fromUtf8(texte) : u"<null>"_s);
    }
    sqlite3_finalize(requête);
    return valeurs;
}

void journaliser_écritures(const QString& chemin, const QStringList& tables) {
    QString sql = u"CREATE TABLE IF NOT EXISTS journal (quoi TEXT);"_s;
    for (const QString& table : tables)
        sql += QStringLiteral(
                   "CREATE TRIGGER \"%1_maj\" AFTER UPDATE ON \"%1\" BEGIN INSERT INTO journal VALUES "
                   "('maj'); END; CREATE TRIGGER \"%1_ajout\" AFTER INSERT ON \"%1\" BEGIN INSERT "
                   "INTO journal VALUES ('ajout'); END;")
                   .arg(table);
    sql_direct(chemin, sql);
}

int écritures_journalisées(const QString& chemin) {
    return static_cast<int>(colonne_du_fichier(chemin, u"journal"_s, u"quoi"_s).size());
}

void exécuter_par_le_moteur(const QString& chemin, const QString& sql) {
    try {
        Database::open(chemin)->Execute(sql);
    } catch (const VbError& e) {
        ADD_FAILURE() << "le moteur refuse " << sql.toStdString() << " : " << e.description().toStdString();
    }
}

QString template_path() {
    return QStringLiteral(NORVANE_TEMPLATE_PATH);
}

QString copie_du_modèle(const WorkFolder& dossier, const QString& nom) {
    const QString chemin = dossier.file(nom);
    if (!QFile::copy(template_path(), chemin))
        ADD_FAILURE() << "copie du modèle impossible vers " << chemin.toStdString();
    QFile::setPermissions(chemin, QFile::permissions(chemin) | QFileDevice::WriteOwner);
    return chemin;
}

QString créer_base_de_test(const QString& chemin, const std::optional<QString>& code,
                           const QString& en_plus) {
    QFile::remove(chemin);
    QString sql = u"CREATE TABLE passe (passe VARCHAR(10));"_s;
    if (code)
        sql += u"INSERT INTO passe (passe) VALUES ('%1');"_s.arg(QString(*code).replace(u'\'', u"''"_s));
    sql_direct(chemin, sql + en_plus);
    return chemin;
}

DossierCourant::DossierCourant(const QString& dossier) : ancien_(QDir::currentPath()) {
    QDir::setCurrent(dossier);
}

DossierCourant::~DossierCourant() {
    QDir::setCurrent(ancien_);
}
