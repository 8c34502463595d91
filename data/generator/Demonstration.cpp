#include "generator/Demonstration.h"

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"

#include <QDate>
#include <QFile>
#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace {

// Fictional names: common French surnames and first names, combined at random.
const QStringList noms = {
    QStringLiteral("Martin"),    QStringLiteral("Bernard"),     QStringLiteral("Dubois"),
    QStringLiteral("Thomas"),    QStringLiteral("Robert"),      QStringLiteral("Richard"),
    QStringLiteral("Petit"),     QStringLiteral("Durand"),      QStringLiteral("Leroy"),
    QStringLiteral("Moreau"),    QStringLiteral("Simon"),       QStringLiteral("Laurent"),
    QStringLiteral("Lefèvre"),   QStringLiteral("Michel"),      QStringLiteral("Garcia"),
    QStringLiteral("David"),     QStringLiteral("Bertrand"),    QStringLiteral("Roux"),
    QStringLiteral("Vincent"),   QStringLiteral("Fournier"),    QStringLiteral("Morel"),
    QStringLiteral("Girard"),    QStringLiteral("André"),       QStringLiteral("Lefebvre"),
    QStringLiteral("Mercier"),   QStringLiteral("Dupont"),      QStringLiteral("Lambert"),
    QStringLiteral("Bonnet"),    QStringLiteral("François"),    QStringLiteral("Martinez"),
    QStringLiteral("Legrand"),   QStringLiteral("Garnier"),     QStringLiteral("Faure"),
    QStringLiteral("Rousseau"),  QStringLiteral("Blanc"),       QStringLiteral("Guérin"),
    QStringLiteral("Muller"),    QStringLiteral("Henry"),       QStringLiteral("Roussel"),
    QStringLiteral("Nicolas"),   QStringLiteral("Perrin"),      QStringLiteral("Morin"),
    QStringLiteral("Mathieu"),   QStringLiteral("Clément"),     QStringLiteral("Gauthier"),
    QStringLiteral("Dumont"),    QStringLiteral("Lopez"),       QStringLiteral("Fontaine"),
    QStringLiteral("Chevalier"), QStringLiteral("Robin"),       QStringLiteral("Masson"),
    QStringLiteral("Sanchez"),   QStringLiteral("Gérard"),      QStringLiteral("Nguyen"),
    QStringLiteral("Boyer"),     QStringLiteral("Denis"),       QStringLiteral("Lemaire"),
    QStringLiteral("Duval"),     QStringLiteral("Joly"),        QStringLiteral("Gautier"),
    QStringLiteral("Roger"),     QStringLiteral("Roche"),       QStringLiteral("Roy"),
    QStringLiteral("Noël"),      QStringLiteral("Meyer"),       QStringLiteral("Lucas"),
    QStringLiteral("Meunier"),   QStringLiteral("Jean"),        QStringLiteral("Pérez"),
    QStringLiteral("Marchand"),  QStringLiteral("Dufour"),      QStringLiteral("Blanchard"),
    QStringLiteral("Marie"),     QStringLiteral("Barbier"),     QStringLiteral("Brun"),
    QStringLiteral("Dumas"),     QStringLiteral("Brunet"),      QStringLiteral("Schmitt"),
    QStringLiteral("Leroux"),    QStringLiteral("Colin"),       QStringLiteral("Fernandez"),
    QStringLiteral("Pierre"),    QStringLiteral("Renard"),      QStringLiteral("Arnaud"),
    QStringLiteral("Rolland"),   QStringLiteral("Caron"),       QStringLiteral("Aubert"),
    QStringLiteral("Giraud"),    QStringLiteral("Leclerc"),     QStringLiteral("Vidal"),
    QStringLiteral("Bourgeois"), QStringLiteral("Renaud"),      QStringLiteral("Lemoine"),
    QStringLiteral("Picard"),    QStringLiteral("Gaillard"),    QStringLiteral("Philippe"),
    QStringLiteral("Leclercq"),  QStringLiteral("Lacroix"),     QStringLiteral("Fabre"),
    QStringLiteral("Dupuis"),    QStringLiteral("Olivier"),     QStringLiteral("Rodriguez"),
    QStringLiteral("Da Silva"),  QStringLiteral("Hubert"),      QStringLiteral("Louis"),
    QStringLiteral("Charles"),   QStringLiteral("Guillot"),     QStringLiteral("Rivière"),
    QStringLiteral("Le Gall"),   QStringLiteral("Guillaume"),   QStringLiteral("Adam"),
    QStringLiteral("Rey"),       QStringLiteral("Moulin"),      QStringLiteral("Gonzalez"),
    QStringLiteral("Berger"),    QStringLiteral("Lecomte"),     QStringLiteral("Ménard"),
    QStringLiteral("Fleury"),    QStringLiteral("Deschamps"),   QStringLiteral("Carpentier"),
    QStringLiteral("Julien"),    QStringLiteral("Benoît"),      QStringLiteral("Paris"),
    QStringLiteral("Maillard"),  QStringLiteral("Marchal"),     QStringLiteral("Aubry"),
    QStringLiteral("Vasseur"),   QStringLiteral("Le Roux"),     QStringLiteral("Renault"),
    QStringLiteral("Jacquet"),   QStringLiteral("Collet"),      QStringLiteral("Prévost"),
    QStringLiteral("Poirier"),   QStringLiteral("Charpentier"), QStringLiteral("Royer"),
    QStringLiteral("Huet"),      QStringLiteral("Baron"),       QStringLiteral("Dupuy"),
    QStringLiteral("Pons"),      QStringLiteral("Paul"),        QStringLiteral("Laine"),
    QStringLiteral("Carré"),     QStringLiteral("Breton"),      QStringLiteral("Rémy"),
    QStringLiteral("Schneider"), QStringLiteral("Perrot"),      QStringLiteral("Guyot"),
    QStringLiteral("Barre"),     QStringLiteral("Marty"),       QStringLiteral("Cousin"),
    QStringLiteral("Dupré"),     QStringLiteral("Duprat"),      QStringLiteral("Émond"),
    QStringLiteral("Éloy"),      QStringLiteral("Édouard"),     QStringLiteral("Ébrard"),
};

const QStringList prénoms_garçons = {
    QStringLiteral("Gabriel"), QStringLiteral("Léo"),      QStringLiteral("Raphaël"),
    QStringLiteral("Louis"),   QStringLiteral("Arthur"),   QStringLiteral("Jules"),
    QStringLiteral("Adam"),    QStringLiteral("Maël"),     QStringLiteral("Lucas"),
    QStringLiteral("Hugo"),    QStringLiteral("Noah"),     QStringLiteral("Liam"),
    QStringLiteral("Gabin"),   QStringLiteral("Sacha"),    QStringLiteral("Paul"),
    QStringLiteral("Nathan"),  QStringLiteral("Aaron"),    QStringLiteral("Mohamed"),
    QStringLiteral("Ethan"),   QStringLiteral("Tom"),      QStringLiteral("Éden"),
    QStringLiteral("Léon"),    QStringLiteral("Noé"),      QStringLiteral("Tiago"),
    QStringLiteral("Théo"),    QStringLiteral("Isaac"),    QStringLiteral("Marius"),
    QStringLiteral("Victor"),  QStringLiteral("Ayden"),    QStringLiteral("Martin"),
    QStringLiteral("Naël"),    QStringLiteral("Mathis"),   QStringLiteral("Axel"),
    QStringLiteral("Robin"),   QStringLiteral("Timéo"),    QStringLiteral("Émile"),
    QStringLiteral("Nino"),    QStringLiteral("Valentin"), QStringLiteral("Eliott"),
    QStringLiteral("Samuel"),
};

const QStringList prénoms_filles = {
    QStringLiteral("Jade"),     QStringLiteral("Louise"),   QStringLiteral("Emma"),
    QStringLiteral("Ambre"),    QStringLiteral("Alice"),    QStringLiteral("Rose"),
    QStringLiteral("Anna"),     QStringLiteral("Alba"),     QStringLiteral("Romy"),
    QStringLiteral("Mia"),      QStringLiteral("Lina"),     QStringLiteral("Léna"),
    QStringLiteral("Julia"),    QStringLiteral("Chloé"),    QStringLiteral("Inès"),
    QStringLiteral("Léa"),      QStringLiteral("Agathe"),   QStringLiteral("Iris"),
    QStringLiteral("Juliette"), QStringLiteral("Mila"),     QStringLiteral("Zoé"),
    QStringLiteral("Lou"),      QStringLiteral("Nina"),     QStringLiteral("Margaux"),
    QStringLiteral("Eva"),      QStringLiteral("Charlie"),  QStringLiteral("Victoire"),
    QStringLiteral("Inaya"),    QStringLiteral("Adèle"),    QStringLiteral("Sofia"),
    QStringLiteral("Lucie"),    QStringLiteral("Clémence"), QStringLiteral("Manon"),
    QStringLiteral("Camille"),  QStringLiteral("Éléna"),    QStringLiteral("Héloïse"),
    QStringLiteral("Océane"),   QStringLiteral("Maëlys"),   QStringLiteral("Capucine"),
    QStringLiteral("Élise"),
};

const QStringList prénoms_adultes_hommes = {
    QStringLiteral("Nicolas"), QStringLiteral("Julien"),   QStringLiteral("Sébastien"),
    QStringLiteral("Mathieu"), QStringLiteral("Thomas"),   QStringLiteral("Guillaume"),
    QStringLiteral("Jérôme"),  QStringLiteral("Olivier"),  QStringLiteral("Romain"),
    QStringLiteral("Karim"),   QStringLiteral("Stéphane"), QStringLiteral("Antoine"),
};

const QStringList prénoms_adultes_femmes = {
    QStringLiteral("Céline"), QStringLiteral("Aurélie"),  QStringLiteral("Julie"),
    QStringLiteral("Émilie"), QStringLiteral("Sandrine"), QStringLiteral("Nathalie"),
    QStringLiteral("Sophie"), QStringLiteral("Claire"),   QStringLiteral("Laetitia"),
    QStringLiteral("Samia"),  QStringLiteral("Hélène"),   QStringLiteral("Virginie"),
};

const QStringList rues = {
    QStringLiteral("rue de la République"), QStringLiteral("avenue Jean Jaurès"),
    QStringLiteral("rue Victor Hugo"),      QStringLiteral("place de l'Église"),
    QStringLiteral("rue des Écoles"),       QStringLiteral("chemin des Vignes"),
    QStringLiteral("allée des Tilleuls"),   QStringLiteral("rue Pasteur"),
    QStringLiteral("boulevard Gambetta"),   QStringLiteral("impasse des Lilas"),
    QStringLiteral("rue du Moulin"),        QStringLiteral("rue de la Gare"),
};

struct Ville {
    const char* code_postal;
    const char* nom;
};
constexpr std::array<Ville, 6> villes = {{{"69100", "Villeurbanne"},
                                          {"69120", "Vaulx-en-Velin"},
                                          {"69500", "Bron"},
                                          {"69003", "Lyon"},
                                          {"69200", "Vénissieux"},
                                          {"69140", "Rillieux-la-Pape"}}};

// The family doctors and hospitals of the neighbourhood, at an address of rues in a town of villes (indexes).
struct Praticien {
    const char* nom;
    const char* téléphone;
    const char* numéro;
    int rue;
    int ville;
};
constexpr std::array<Praticien, 6> médecins = {{{"Dr Anne Mercier", "04 00 00 10 01", "14", 7, 0},
                                                {"Dr Hélène Fabre", "04 00 00 10 02", "3", 1, 1},
                                                {"Dr Julien Marchal", "04 00 00 10 03", "27", 0, 2},
                                                {"Dr Sophie Renaud", "04 00 00 10 04", "8", 3, 3},
                                                {"Dr Olivier Caron", "04 00 00 10 05", "41", 2, 4},
                                                {"Dr Sandrine Lacroix", "04 00 00 10 06", "5", 10, 5}}};
constexpr std::array<Praticien, 3> hôpitaux = {
    {{"Centre hospitalier des Acacias", "04 00 00 20 01", "2", 8, 0},
     {"Hôpital pédiatrique du Parc", "04 00 00 20 02", "60", 1, 2},
     {"Clinique des Lilas", "04 00 00 20 03", "12", 9, 4}}};

const QStringList assurances = {
    QStringLiteral("Assurance scolaire du Rhône"), QStringLiteral("Mutuelle des Tilleuls"),
    QStringLiteral("Prévoyance familiale des Lilas"), QStringLiteral("Caisse mutuelle des Acacias")};

const QStringList professions = {
    QStringLiteral("Infirmière"),  QStringLiteral("Technicien"),  QStringLiteral("Comptable"),
    QStringLiteral("Boulanger"),   QStringLiteral("Enseignante"), QStringLiteral("Ingénieur"),
    QStringLiteral("Vendeuse"),    QStringLiteral("Chauffeur"),   QStringLiteral("Aide-soignante"),
    QStringLiteral("Électricien"), QStringLiteral("Secrétaire"),  QStringLiteral("Sans profession"),
};
const QStringList csp_professions = {
    QStringLiteral("43"), QStringLiteral("47"), QStringLiteral("46"), QStringLiteral("21"),
    QStringLiteral("42"), QStringLiteral("38"), QStringLiteral("55"), QStringLiteral("64"),
    QStringLiteral("52"), QStringLiteral("62"), QStringLiteral("54"), QStringLiteral("85"),
};

const QStringList autres_nationalités = {QStringLiteral("Portugaise"), QStringLiteral("Marocaine"),
                                         QStringLiteral("Algérienne"), QStringLiteral("Italienne"),
                                         QStringLiteral("Turque"),     QStringLiteral("Roumaine")};
const QStringList codes_autres_nationalités = {QStringLiteral("99139"), QStringLiteral("99350"),
                                               QStringLiteral("99352"), QStringLiteral("99127"),
                                               QStringLiteral("99208"), QStringLiteral("99114")};

struct Niveau {
    const char* code;
    const char* cycle;
    int année_naissance; // of the pupils of this level in the school year 2025-2026
};
constexpr std::array<Niveau, 8> niveaux = {{{"PS", "1", 2022},
                                            {"MS", "1", 2021},
                                            {"GS", "1", 2020},
                                            {"CP", "2", 2019},
                                            {"CE1", "2", 2018},
                                            {"CE2", "2", 2017},
                                            {"CM1", "3", 2016},
                                            {"CM2", "3", 2015}}};
constexpr int élèves_par_classe = 25;
const QDate rentrée(2025, 9, 1);

// The generator's dice: the Mersenne twister's output is the same everywhere, unlike the standard
// distributions, so a seed always gives the same school.
class Dés {
public:
    explicit Dés(quint32 graine) : moteur_(graine) {}
    int entre(int bas, int haut) {
        return bas + static_cast<int>(moteur_() % static_cast<quint32>(haut - bas + 1));
    }
    bool chance(int pourcent) { return entre(1, 100) <= pourcent; }
    const QString& parmi(const QStringList& liste) {
        return liste[entre(0, static_cast<int>(liste.size()) - 1)];
    }

private:
    std::mt19937 moteur_;
};

QString téléphone(Dés& dés, bool portable) {
    QString numéro = portable ? QStringLiteral("0%1").arg(dés.entre(6, 7)) : QStringLiteral("04");
    for (int i = 0; i < 4; ++i)
        numéro += QStringLiteral(" %1").arg(dés.entre(0, 99), 2, 10, QLatin1Char('0'));
    return numéro;
}

QString courriel(const QString& prénom, const QString& nom) {
    QString adresse = (prénom + u'.' + nom).toLower();
    adresse.replace(u' ', u'-');
    return adresse + QStringLiteral("@exemple.fr");
}

QString adresse_de(const Praticien& p) {
    return QString::fromUtf8(p.numéro) + u' ' + rues[p.rue];
}

// The four columns of a doctor or a hospital, copied together as its lookup copies them.
void copier_praticien(Recordset& familles, const QString& colonne, const Praticien& p) {
    familles.setField(colonne, QString::fromUtf8(p.nom));
    familles.setField(QStringLiteral("téléphone_") + colonne, QString::fromUtf8(p.téléphone));
    familles.setField(QStringLiteral("adresse_") + colonne, adresse_de(p));
    familles.setField(QStringLiteral("ville_") + colonne, QString::fromUtf8(villes[p.ville].nom));
}

// The lookups hold every street, insurer, doctor and hospital that the records name; the towns are
// the template's own.
void écrire_listes(Database& base) {
    auto adresses = base.OpenRecordset(QStringLiteral("adresses"));
    for (const QString& rue : rues) {
        adresses->AddNew();
        adresses->setField(QStringLiteral("détails"), rue);
        adresses->Update();
    }
    auto sociétés = base.OpenRecordset(QStringLiteral("assurances"));
    for (const QString& société : assurances) {
        sociétés->AddNew();
        sociétés->setField(QStringLiteral("détails"), société);
        sociétés->Update();
    }
    const auto écrire = [&base](const QString& table, const auto& praticiens) {
        auto rs = base.OpenRecordset(table);
        for (const Praticien& p : praticiens) {
            rs->AddNew();
            rs->setField(QStringLiteral("nom"), QString::fromUtf8(p.nom));
            rs->setField(QStringLiteral("téléphone"), QString::fromUtf8(p.téléphone));
            rs->setField(QStringLiteral("adresse"), adresse_de(p));
            rs->setField(QStringLiteral("ville"), QString::fromUtf8(villes[p.ville].nom));
            rs->Update();
        }
    };
    écrire(QStringLiteral("médecins"), médecins);
    écrire(QStringLiteral("hôpitaux"), hôpitaux);
}

struct Famille {
    QString référence, nom, numéro, rue, code_postal, ville, téléphone;
};

Famille écrire_famille(Recordset& familles, Dés& dés, int numéro) {
    Famille f;
    f.référence = QStringLiteral("%1").arg(numéro, 6, 10, QLatin1Char('0'));
    f.nom = dés.parmi(noms);
    f.numéro = QString::number(dés.entre(1, 180));
    f.rue = dés.parmi(rues);
    const Ville& ville = villes[dés.entre(0, static_cast<int>(villes.size()) - 1)];
    f.code_postal = QString::fromUtf8(ville.code_postal);
    f.ville = QString::fromUtf8(ville.nom);
    f.téléphone = téléphone(dés, false);

    const bool mère_d_abord = dés.chance(70);
    const QString prénom1 = dés.parmi(mère_d_abord ? prénoms_adultes_femmes : prénoms_adultes_hommes);
    const int métier1 = dés.entre(0, static_cast<int>(professions.size()) - 1);
    familles.AddNew();
    familles.setField(QStringLiteral("référence_famille"), f.référence);
    familles.setField(QStringLiteral("genre_responsable_légal"),
                      mère_d_abord ? QStringLiteral("Madame") : QStringLiteral("Monsieur"));
    familles.setField(QStringLiteral("nom_responsable_légal"), f.nom);
    familles.setField(QStringLiteral("prénom_responsable_légal"), prénom1);
    familles.setField(QStringLiteral("profession_responsable_légal"), professions[métier1]);
    familles.setField(QStringLiteral("csp_responsable_légal"), csp_professions[métier1]);
    familles.setField(QStringLiteral("téléphone_professionnel2_responsable_légal"), téléphone(dés, true));
    familles.setField(QStringLiteral("mail_responsable_légal"), courriel(prénom1, f.nom));
    familles.setField(QStringLiteral("élection_comité_responsable_légal"), dés.chance(80) ? "oui" : "non");
    familles.setField(QStringLiteral("numéro_responsable"), f.numéro);
    familles.setField(QStringLiteral("adresse_responsable"), f.rue);
    familles.setField(QStringLiteral("code_postal_responsable"), f.code_postal);
    familles.setField(QStringLiteral("ville_responsable"), f.ville);
    familles.setField(QStringLiteral("communication_données"), dés.chance(85) ? "oui" : "non");
    familles.setField(QStringLiteral("société_assurance"), dés.parmi(assurances));
    familles.setField(QStringLiteral("police_assurance"),
                      QStringLiteral("AS-%1").arg(dés.entre(100000, 999999)));
    if (dés.chance(85))
        copier_praticien(familles, QStringLiteral("médecin_traitant"),
                         médecins[dés.entre(0, static_cast<int>(médecins.size()) - 1)]);
    if (dés.chance(60))
        copier_praticien(familles, QStringLiteral("hôpital_préférentiel"),
                         hôpitaux[dés.entre(0, static_cast<int>(hôpitaux.size()) - 1)]);
    if (dés.chance(75)) {
        const QString prénom2 = dés.parmi(mère_d_abord ? prénoms_adultes_hommes : prénoms_adultes_femmes);
        const int métier2 = dés.entre(0, static_cast<int>(professions.size()) - 1);
        familles.setField(QStringLiteral("situation_familiale"),
                          dés.chance(70) ? QStringLiteral("Mariés") : QStringLiteral("Pacsés"));
        familles.setField(QStringLiteral("genre_conjoint"),
                          mère_d_abord ? QStringLiteral("Monsieur") : QStringLiteral("Madame"));
        familles.setField(QStringLiteral("nom_conjoint"), f.nom);
        familles.setField(QStringLiteral("prénom_conjoint"), prénom2);
        familles.setField(QStringLiteral("profession_conjoint"), professions[métier2]);
        familles.setField(QStringLiteral("csp_conjoint"), csp_professions[métier2]);
        familles.setField(QStringLiteral("téléphone_professionnel2_conjoint"), téléphone(dés, true));
        familles.setField(QStringLiteral("élection_comité_conjoint"), dés.chance(80) ? "oui" : "non");
        familles.setField(QStringLiteral("numéro_conjoint"), f.numéro);
        familles.setField(QStringLiteral("adresse_conjoint"), f.rue);
        familles.setField(QStringLiteral("code_postal_conjoint"), f.code_postal);
        familles.setField(QStringLiteral("ville_conjoint"), f.ville);
    } else {
        familles.setField(QStringLiteral("situation_familiale"),
                          dés.chance(50) ? QStringLiteral("Divorcés") : QStringLiteral("Célibataire"));
    }
    familles.Update();
    return f;
}

struct Classe {
    QString référence;
    int niveau;
};

void écrire_élève(Recordset& élèves, Dés& dés, const Famille& f, const Classe& classe, int matricule,
                  bool ainé) {
    const Niveau& niveau = niveaux[classe.niveau];
    const bool garçon = dés.chance(50);
    const QDate naissance(niveau.année_naissance, dés.entre(1, 12), dés.entre(1, 28));
    const int années_ici = dés.entre(0, classe.niveau);
    const QDate inscription = rentrée.addYears(-années_ici);

    élèves.AddNew();
    élèves.setField(QStringLiteral("matricule"),
                    QStringLiteral("%1").arg(matricule, 6, 10, QLatin1Char('0')));
    élèves.setField(QStringLiteral("référence_famille"), f.référence);
    élèves.setField(QStringLiteral("nom_élève"), f.nom);
    élèves.setField(QStringLiteral("prénom_élève"), dés.parmi(garçon ? prénoms_garçons : prénoms_filles));
    élèves.setField(QStringLiteral("date_naissance_élève"), naissance);
    élèves.setField(QStringLiteral("lieu_naissance_élève"), f.ville);
    élèves.setField(QStringLiteral("sexe_élève"),
                    garçon ? QStringLiteral("Masculin") : QStringLiteral("Féminin"));
    if (dés.chance(90)) {
        élèves.setField(QStringLiteral("nationalité_élève"), QStringLiteral("Française"));
        élèves.setField(QStringLiteral("code_nationalité_élève"), QStringLiteral("99100"));
    } else {
        const int n = dés.entre(0, static_cast<int>(autres_nationalités.size()) - 1);
        élèves.setField(QStringLiteral("nationalité_élève"), autres_nationalités[n]);
        élèves.setField(QStringLiteral("code_nationalité_élève"), codes_autres_nationalités[n]);
    }
    élèves.setField(QStringLiteral("date_inscription_élève"), inscription);
    if (dés.chance(4)) {
        élèves.setField(QStringLiteral("date_radiation_élève"), rentrée.addDays(dés.entre(20, 200)));
        élèves.setField(QStringLiteral("établissement_accueil"),
                        QStringLiteral("École Jules Ferry, Grenoble"));
    }
    élèves.setField(QStringLiteral("ainé"), ainé);
    élèves.setField(QStringLiteral("référence_classe_élève"), classe.référence);
    élèves.setField(QStringLiteral("niveau_classe_élève"), QString::fromUtf8(niveau.code));
    élèves.setField(QStringLiteral("cycle_classe_élève"), QString::fromUtf8(niveau.cycle));
    if (classe.niveau >= 4)
        élèves.setField(QStringLiteral("langue_vivante_élève"), QStringLiteral("Anglais"));
    élèves.setField(QStringLiteral("numéro_résidence"), f.numéro);
    élèves.setField(QStringLiteral("adresse_résidence"), f.rue);
    élèves.setField(QStringLiteral("code_postal_résidence"), f.code_postal);
    élèves.setField(QStringLiteral("ville_résidence"), f.ville);
    élèves.setField(QStringLiteral("téléphone1_résidence"), f.téléphone);
    élèves.setField(QStringLiteral("nom_contact1"), dés.parmi(noms));
    élèves.setField(QStringLiteral("prénom_contact1"), dés.parmi(prénoms_adultes_femmes));
    élèves.setField(QStringLiteral("téléphone_contact1"), téléphone(dés, true));
    élèves.setField(QStringLiteral("vaccinations"), QStringLiteral("à jour"));
    if (dés.chance(8))
        élèves.setField(QStringLiteral("allergies"), QStringLiteral("arachide"));
    élèves.setField(QStringLiteral("restauration_scolaire"), dés.chance(70) ? "oui" : "non");
    élèves.setField(QStringLiteral("coopérative_scolaire"), dés.chance(90) ? "payée" : "non payée");
    élèves.setField(QStringLiteral("participation_usep"), dés.chance(40) ? "oui" : "non");
    élèves.Update();
}

// Classes as a school has them: the pupils spread evenly on the levels, about 25 a class, numbered.
std::vector<Classe> classes_pour(int élèves) {
    const int par_niveau = std::max(1, (élèves + élèves_par_classe * 8 - 1) / (élèves_par_classe * 8));
    std::vector<Classe> classes;
    for (int n = 0; n < static_cast<int>(niveaux.size()); ++n)
        for (int k = 0; k < par_niveau; ++k)
            classes.push_back({QString::number(classes.size() + 1), n});
    return classes;
}

void écrire_équipe(Database& base, Dés& dés, const std::vector<Classe>& classes) {
    auto équipe = base.OpenRecordset(QStringLiteral("équipe"));
    for (const Classe& classe : classes) {
        const bool femme = dés.chance(80);
        const QString nom = dés.parmi(noms);
        const QString prénom = dés.parmi(femme ? prénoms_adultes_femmes : prénoms_adultes_hommes);
        équipe->AddNew();
        équipe->setField(QStringLiteral("genre_enseignant"),
                         femme ? QStringLiteral("Madame") : QStringLiteral("Monsieur"));
        équipe->setField(QStringLiteral("nom_enseignant"), nom);
        équipe->setField(QStringLiteral("prénom_enseignant"), prénom);
        équipe->setField(QStringLiteral("mail_enseignant"), courriel(prénom, nom));
        équipe->setField(QStringLiteral("référence_classe_enseignant"), classe.référence);
        équipe->setField(QStringLiteral("niveau_classe_enseignant"),
                         QString::fromUtf8(niveaux[classe.niveau].code));
        équipe->setField(QStringLiteral("cycle_classe_enseignant"),
                         QString::fromUtf8(niveaux[classe.niveau].cycle));
        équipe->Update();
    }
}

void écrire_école(Database& base) {
    auto école = base.OpenRecordset(QStringLiteral("école"));
    école->AddNew();
    école->setField(QStringLiteral("nom_école"), QStringLiteral("École primaire des Tilleuls"));
    école->setField(QStringLiteral("numéro_école"), QStringLiteral("12"));
    école->setField(QStringLiteral("adresse_école"), QStringLiteral("rue des Écoles"));
    école->setField(QStringLiteral("code_postal_école"), QStringLiteral("69100"));
    école->setField(QStringLiteral("ville_école"), QStringLiteral("Villeurbanne"));
    école->setField(QStringLiteral("téléphone_école"), QStringLiteral("04 00 00 00 00"));
    école->setField(QStringLiteral("mail_école"), QStringLiteral("ecole.tilleuls@exemple.fr"));
    école->setField(QStringLiteral("rne_école"), QStringLiteral("0699999Z"));
    école->setField(QStringLiteral("genre_directeur_école"), QStringLiteral("Madame"));
    école->setField(QStringLiteral("nom_directeur_école"), QStringLiteral("Lambert"));
    école->setField(QStringLiteral("prénom_directeur_école"), QStringLiteral("Claire"));
    école->setField(QStringLiteral("titre_directeur"), QStringLiteral("Directrice"));
    école->setField(QStringLiteral("politesse_directeur"), QStringLiteral("Madame la Directrice"));
    école->Update();
}

} // namespace

void remplir_démonstration(Database& base, const Démonstration& options) {
    Dés dés(options.graine);
    const std::vector<Classe> classes = classes_pour(options.élèves);
    base.BeginTrans();
    try {
        écrire_listes(base);
        écrire_école(base);
        écrire_équipe(base, dés, classes);
        auto familles = base.OpenRecordset(QStringLiteral("familles"));
        auto élèves = base.OpenRecordset(QStringLiteral("élèves"));
        int matricule = 0;
        for (int famille = 1; matricule < options.élèves; ++famille) {
            const Famille f = écrire_famille(*familles, dés, famille);
            const int enfants = std::min(options.élèves - matricule, dés.chance(45)   ? 1
                                                                     : dés.chance(70) ? 2
                                                                                      : 3);
            // Siblings sit in classes of their own; the one in the highest level is the eldest.
            std::vector<Classe> leurs_classes;
            for (int enfant = 0; enfant < enfants; ++enfant)
                leurs_classes.push_back(classes[dés.entre(0, static_cast<int>(classes.size()) - 1)]);
            std::stable_sort(leurs_classes.begin(), leurs_classes.end(),
                             [](const Classe& a, const Classe& b) { return a.niveau > b.niveau; });
            for (size_t enfant = 0; enfant < leurs_classes.size(); ++enfant)
                écrire_élève(*élèves, dés, f, leurs_classes[enfant], ++matricule, enfant == 0);
        }
        base.CommitTrans();
    } catch (...) {
        base.Rollback();
        throw;
    }
}

namespace {

QString texte_ressource(const QString& nom) {
    QFile file(nom);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The towns of France (villes.tsv: a header line, then postal code TAB commune) as INSERTs of a few
// hundred rows each, which keeps every statement small for the engine.
QString insertions_villes(const QString& tableau) {
    constexpr int lignes_par_insertion = 500;
    const auto littéral = [](QString texte) {
        return u'\'' + texte.replace(u'\'', QStringLiteral("''")) + u'\'';
    };
    QStringList valeurs;
    for (const QString& ligne : tableau.split(u'\n', Qt::SkipEmptyParts).mid(1)) {
        const QStringList cellules = ligne.split(u'\t');
        if (cellules.size() == 2)
            valeurs << u'(' + littéral(cellules[0]) + QStringLiteral(", ") + littéral(cellules[1]) + u')';
    }
    QString sql;
    for (qsizetype début = 0; début < valeurs.size(); début += lignes_par_insertion)
        sql += QStringLiteral("INSERT INTO villes (code_postal, détails) VALUES ") +
               valeurs.mid(début, lignes_par_insertion).join(QStringLiteral(", ")) + QStringLiteral(";\n");
    return sql;
}

} // namespace

QStringList scripts_modèle() {
    return {texte_ressource(QStringLiteral(":/modele/schema.sql")),
            texte_ressource(QStringLiteral(":/modele/seed.sql")),
            insertions_villes(texte_ressource(QStringLiteral(":/modele/villes.tsv")))};
}
