#include "support/BaseEleves.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "shell/MDIForm1.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <stdexcept>

using namespace Qt::StringLiterals;

QString créer_base_élèves(const WorkFolder& dossier) {
    return copie_du_modèle(dossier);
}

void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom, const QString& prénom,
                   const QString& référence) {
    auto texte = [](const QString& v) {
        return v.isNull() ? u"NULL"_s : QLatin1Char('\'') + QString(v).replace('\'', "''") + '\'';
    };
    exécuter_par_le_moteur(chemin, QStringLiteral("INSERT INTO élèves (matricule, nom_élève, prénom_élève, "
                                                  "référence_famille) VALUES (%1, %2, %3, %4)")
                                       .arg(texte(matricule), texte(nom), texte(prénom), texte(référence)));
}

void ajouter_élèves(const QString& chemin, std::initializer_list<const char*> matricules) {
    for (const char* m : matricules)
        ajouter_élève(chemin, QString::fromUtf8(m), u"NOM"_s + QString::fromUtf8(m));
}

void ajouter_famille(const QString& chemin, const QString& valeurs) {
    ajouter_ligne(chemin, u"familles"_s, valeurs);
}

void ajouter_ligne(const QString& chemin, const QString& table, const QString& valeurs) {
    QStringList colonnes, textes;
    for (const QString& paire : valeurs.split(u'|')) {
        colonnes << paire.section(u'=', 0, 0);
        textes << u"'"_s + paire.section(u'=', 1).replace(u"'"_s, u"''"_s) + u"'"_s;
    }
    exécuter_par_le_moteur(chemin, u"INSERT INTO "_s + table + u" ("_s + colonnes.join(u", "_s) +
                                       u") VALUES ("_s + textes.join(u", "_s) + u")"_s);
}

ÉcranÉlèveTest::ÉcranÉlèveTest() = default;
ÉcranÉlèveTest::~ÉcranÉlèveTest() = default;

void ÉcranÉlèveTest::SetUp() {
    WorkFolderTest::SetUp();
    base = créer_base_élèves(folder);
    module1().base_en_cours = base;
    mdi = std::make_unique<MDIForm1>();
    mdi->show();
    QApplication::setActiveWindow(mdi.get());
}

void ÉcranÉlèveTest::TearDown() {
    WorkFolderTest::TearDown();
    mdi.reset();
}

feuille_élève& ÉcranÉlèveTest::ouvrir() {
    exécuter_commande(*mdi, u"menuenfantsindex1"_s);
    auto* f = module1().feuilles().siChargée<feuille_élève>();
    if (!f)
        throw std::runtime_error("la fiche élève ne s'est pas ouverte");
    if (activer)
        montrer_active(*f);
    return *f;
}

feuille_famille& ÉcranÉlèveTest::ouvrir_familles() {
    exécuter_commande(*mdi, u"menuenfantsindex2"_s);
    auto* f = module1().feuilles().siChargée<feuille_famille>();
    if (!f)
        throw std::runtime_error("la fiche famille ne s'est pas ouverte");
    return *f;
}

QStringList ÉcranÉlèveTest::matricules() const {
    return colonne_du_fichier(base, u"élèves"_s, u"matricule"_s);
}
