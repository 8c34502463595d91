#include "BaseEleves.h"

#include <sqlite3.h>

namespace {

struct Fichier {
    sqlite3* db = nullptr;
    explicit Fichier(const QString& chemin) {
        if (sqlite3_open(chemin.toUtf8().constData(), &db) != SQLITE_OK)
            ADD_FAILURE() << "ouverture impossible : " << chemin.toStdString();
    }
    ~Fichier() { sqlite3_close(db); }
};

QString colonnes_élèves() {
    QStringList c = {
        "matricule VARCHAR(10)",
        "référence_famille TEXT", // TEXT, not MEMO: SQLite would read "000007" as the number 7
        "nom_élève VARCHAR(30)",
        "prénom_élève VARCHAR(30)",
        "date_naissance_élève DATE",
        "lieu_naissance_élève VARCHAR(50)",
        "sexe_élève VARCHAR(8)",
        "nationalité_élève VARCHAR(30)",
        "code_nationalité_élève VARCHAR(5)",
        "date_inscription_élève DATE",
        "date_radiation_élève DATE",
        "établissement_accueil VARCHAR(50)",
        "ainé BOOLEAN NOT NULL DEFAULT 0",
        "chemin_photo VARCHAR(254)",
        "référence_classe_élève VARCHAR(5)",
        "niveau_classe_élève VARCHAR(10)",
        "cycle_classe_élève VARCHAR(1)",
        "cursus_allongé_élève VARCHAR(50)",
        "saisine_ccpe_élève VARCHAR(50)",
        "langue_vivante_élève VARCHAR(30)",
        "numéro_résidence VARCHAR(10)",
        "adresse_résidence VARCHAR(50)",
        "adresse2_résidence VARCHAR(50)",
        "code_postal_résidence VARCHAR(8)",
        "ville_résidence VARCHAR(50)",
        "téléphone1_résidence VARCHAR(20)",
        "téléphone2_résidence VARCHAR(20)",
        "vaccinations VARCHAR(50)",
        "allergies VARCHAR(50)",
        "contre_indications VARCHAR(50)",
        "observations_médicales TEXT",
        "observations_générales TEXT",
        "participation_usep VARCHAR(20)",
        "restauration_scolaire VARCHAR(30)",
        "coopérative_scolaire VARCHAR(30)",
    };
    for (int i = 1; i <= 5; ++i)
        c << QStringLiteral("nom_contact%1 VARCHAR(30)").arg(i)
          << QStringLiteral("prénom_contact%1 VARCHAR(30)").arg(i)
          << QStringLiteral("téléphone_contact%1 VARCHAR(20)").arg(i);
    for (int i = 1; i <= 10; ++i)
        c << QStringLiteral("champ_paramétable%1 %2").arg(i).arg(i == 5 || i >= 9 ? "TEXT" : "VARCHAR(50)");
    return c.join(QStringLiteral(", "));
}

QString colonnes_paramètres() {
    QStringList c;
    for (int i = 1; i <= 10; ++i)
        c << QStringLiteral("intitulé_champ_paramétrable%1 VARCHAR(20)").arg(i);
    for (int i = 1; i <= 10; ++i)
        c << QStringLiteral("infobulle_champ_paramétrable%1 VARCHAR(50)").arg(i);
    return c.join(QStringLiteral(", "));
}

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
    const QString sql = QStringLiteral("SELECT \"%1\" FROM \"%2\" ORDER BY rowid").arg(colonne, table);
    if (sqlite3_prepare_v2(f.db, sql.toUtf8().constData(), -1, &requête, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << "lecture impossible : " << sql.toStdString();
        return valeurs;
    }
    while (sqlite3_step(requête) == SQLITE_ROW) {
        const auto* texte = reinterpret_cast<const char*>(sqlite3_column_text(requête, 0));
        valeurs << (texte ? QString::fromUtf8(texte) : QStringLiteral("<null>"));
    }
    sqlite3_finalize(requête);
    return valeurs;
}

QString créer_base_élèves(const WorkFolder& dossier) {
    const QString chemin = dossier.file(QStringLiteral("école.mdb"));
    sql_direct(chemin, QStringLiteral("CREATE TABLE élèves (%1);").arg(colonnes_élèves()));
    sql_direct(chemin, QStringLiteral("CREATE TABLE paramètres (%1);").arg(colonnes_paramètres()));
    sql_direct(chemin, QStringLiteral("CREATE TABLE documents (intitulé_bouton VARCHAR(30), "
                                      "destinataire_document VARCHAR(50), titre_document VARCHAR(50), "
                                      "paragraphe1_document VARCHAR(254), paragraphe2_document VARCHAR(254), "
                                      "paragraphe3_document VARCHAR(254), paragraphe4_document VARCHAR(254), "
                                      "paragraphe5_document VARCHAR(254), paragraphe6_document VARCHAR(254), "
                                      "politesse_document VARCHAR(254), post_scriptum VARCHAR(254), "
                                      "affichage_coordonnées_élève BOOLEAN NOT NULL DEFAULT 0, "
                                      "affichage_coordonnées_responsable_légal BOOLEAN NOT NULL DEFAULT 0, "
                                      "affichage_coordonnées_directeur BOOLEAN NOT NULL DEFAULT 0, "
                                      "affichage_signature_directeur BOOLEAN NOT NULL DEFAULT 0, "
                                      "affichage_date BOOLEAN NOT NULL DEFAULT 0);"));
    return chemin;
}

void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom, const QString& prénom,
                   const QString& référence) {
    auto texte = [](const QString& v) {
        return v.isNull() ? QStringLiteral("NULL")
                          : QLatin1Char('\'') + QString(v).replace('\'', "''") + '\'';
    };
    sql_direct(chemin,
               QStringLiteral("INSERT INTO élèves (matricule, nom_élève, prénom_élève, référence_famille) "
                              "VALUES (%1, %2, %3, %4);")
                   .arg(texte(matricule), texte(nom), texte(prénom), texte(référence)));
}
