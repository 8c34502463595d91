#include "generator/Demonstration.h"

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"

#include <QDate>
#include <QFile>
#include <algorithm>
#include <array>
#include <random>
#include <vector>
using namespace Qt::StringLiterals;

namespace {

// Fictional names: common French surnames and first names, combined at random.
const QStringList noms = {
    u"Martin"_s,    u"Bernard"_s,     u"Dubois"_s,    u"Thomas"_s,   u"Robert"_s,    u"Richard"_s,
    u"Petit"_s,     u"Durand"_s,      u"Leroy"_s,     u"Moreau"_s,   u"Simon"_s,     u"Laurent"_s,
    u"Lefèvre"_s,   u"Michel"_s,      u"Garcia"_s,    u"David"_s,    u"Bertrand"_s,  u"Roux"_s,
    u"Vincent"_s,   u"Fournier"_s,    u"Morel"_s,     u"Girard"_s,   u"André"_s,     u"Lefebvre"_s,
    u"Mercier"_s,   u"Dupont"_s,      u"Lambert"_s,   u"Bonnet"_s,   u"François"_s,  u"Martinez"_s,
    u"Legrand"_s,   u"Garnier"_s,     u"Faure"_s,     u"Rousseau"_s, u"Blanc"_s,     u"Guérin"_s,
    u"Muller"_s,    u"Henry"_s,       u"Roussel"_s,   u"Nicolas"_s,  u"Perrin"_s,    u"Morin"_s,
    u"Mathieu"_s,   u"Clément"_s,     u"Gauthier"_s,  u"Dumont"_s,   u"Lopez"_s,     u"Fontaine"_s,
    u"Chevalier"_s, u"Robin"_s,       u"Masson"_s,    u"Sanchez"_s,  u"Gérard"_s,    u"Nguyen"_s,
    u"Boyer"_s,     u"Denis"_s,       u"Lemaire"_s,   u"Duval"_s,    u"Joly"_s,      u"Gautier"_s,
    u"Roger"_s,     u"Roche"_s,       u"Roy"_s,       u"Noël"_s,     u"Meyer"_s,     u"Lucas"_s,
    u"Meunier"_s,   u"Jean"_s,        u"Pérez"_s,     u"Marchand"_s, u"Dufour"_s,    u"Blanchard"_s,
    u"Marie"_s,     u"Barbier"_s,     u"Brun"_s,      u"Dumas"_s,    u"Brunet"_s,    u"Schmitt"_s,
    u"Leroux"_s,    u"Colin"_s,       u"Fernandez"_s, u"Pierre"_s,   u"Renard"_s,    u"Arnaud"_s,
    u"Rolland"_s,   u"Caron"_s,       u"Aubert"_s,    u"Giraud"_s,   u"Leclerc"_s,   u"Vidal"_s,
    u"Bourgeois"_s, u"Renaud"_s,      u"Lemoine"_s,   u"Picard"_s,   u"Gaillard"_s,  u"Philippe"_s,
    u"Leclercq"_s,  u"Lacroix"_s,     u"Fabre"_s,     u"Dupuis"_s,   u"Olivier"_s,   u"Rodriguez"_s,
    u"Da Silva"_s,  u"Hubert"_s,      u"Louis"_s,     u"Charles"_s,  u"Guillot"_s,   u"Rivière"_s,
    u"Le Gall"_s,   u"Guillaume"_s,   u"Adam"_s,      u"Rey"_s,      u"Moulin"_s,    u"Gonzalez"_s,
    u"Berger"_s,    u"Lecomte"_s,     u"Ménard"_s,    u"Fleury"_s,   u"Deschamps"_s, u"Carpentier"_s,
    u"Julien"_s,    u"Benoît"_s,      u"Paris"_s,     u"Maillard"_s, u"Marchal"_s,   u"Aubry"_s,
    u"Vasseur"_s,   u"Le Roux"_s,     u"Renault"_s,   u"Jacquet"_s,  u"Collet"_s,    u"Prévost"_s,
    u"Poirier"_s,   u"Charpentier"_s, u"Royer"_s,     u"Huet"_s,     u"Baron"_s,     u"Dupuy"_s,
    u"Pons"_s,      u"Paul"_s,        u"Laine"_s,     u"Carré"_s,    u"Breton"_s,    u"Rémy"_s,
    u"Schneider"_s, u"Perrot"_s,      u"Guyot"_s,     u"Barre"_s,    u"Marty"_s,     u"Cousin"_s,
    u"Dupré"_s,     u"Duprat"_s,      u"Émond"_s,     u"Éloy"_s,     u"Édouard"_s,   u"Ébrard"_s,
};

const QStringList prénoms_garçons = {
    u"Gabriel"_s, u"Léo"_s,    u"Raphaël"_s,  u"Louis"_s,   u"Arthur"_s, u"Jules"_s,  u"Adam"_s,
    u"Maël"_s,    u"Lucas"_s,  u"Hugo"_s,     u"Noah"_s,    u"Liam"_s,   u"Gabin"_s,  u"Sacha"_s,
    u"Paul"_s,    u"Nathan"_s, u"Aaron"_s,    u"Mohamed"_s, u"Ethan"_s,  u"Tom"_s,    u"Éden"_s,
    u"Léon"_s,    u"Noé"_s,    u"Tiago"_s,    u"Théo"_s,    u"Isaac"_s,  u"Marius"_s, u"Victor"_s,
    u"Ayden"_s,   u"Martin"_s, u"Naël"_s,     u"Mathis"_s,  u"Axel"_s,   u"Robin"_s,  u"Timéo"_s,
    u"Émile"_s,   u"Nino"_s,   u"Valentin"_s, u"Eliott"_s,  u"Samuel"_s,
};

const QStringList prénoms_filles = {
    u"Jade"_s,    u"Louise"_s, u"Emma"_s,    u"Ambre"_s,    u"Alice"_s,    u"Rose"_s,     u"Anna"_s,
    u"Alba"_s,    u"Romy"_s,   u"Mia"_s,     u"Lina"_s,     u"Léna"_s,     u"Julia"_s,    u"Chloé"_s,
    u"Inès"_s,    u"Léa"_s,    u"Agathe"_s,  u"Iris"_s,     u"Juliette"_s, u"Mila"_s,     u"Zoé"_s,
    u"Lou"_s,     u"Nina"_s,   u"Margaux"_s, u"Eva"_s,      u"Charlie"_s,  u"Victoire"_s, u"Inaya"_s,
    u"Adèle"_s,   u"Sofia"_s,  u"Lucie"_s,   u"Clémence"_s, u"Manon"_s,    u"Camille"_s,  u"Éléna"_s,
    u"Héloïse"_s, u"Océane"_s, u"Maëlys"_s,  u"Capucine"_s, u"Élise"_s,
};

const QStringList prénoms_adultes_hommes = {
    u"Nicolas"_s, u"Julien"_s,  u"Sébastien"_s, u"Mathieu"_s, u"Thomas"_s,   u"Guillaume"_s,
    u"Jérôme"_s,  u"Olivier"_s, u"Romain"_s,    u"Karim"_s,   u"Stéphane"_s, u"Antoine"_s,
};

const QStringList prénoms_adultes_femmes = {
    u"Céline"_s, u"Aurélie"_s, u"Julie"_s,    u"Émilie"_s, u"Sandrine"_s, u"Nathalie"_s,
    u"Sophie"_s, u"Claire"_s,  u"Laetitia"_s, u"Samia"_s,  u"Hélène"_s,   u"Virginie"_s,
};

const QStringList rues = {
    u"rue de la République"_s, u"avenue Jean Jaurès"_s, u"rue Victor Hugo"_s,    u"place de l'Église"_s,
    u"rue des Écoles"_s,       u"chemin des Vignes"_s,  u"allée des Tilleuls"_s, u"rue Pasteur"_s,
    u"boulevard Gambetta"_s,   u"impasse des Lilas"_s,  u"rue du Moulin"_s,      u"rue de la Gare"_s,
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

const QStringList assurances = {u"Assurance scolaire du Rhône"_s, u"Mutuelle des Tilleuls"_s,
                                u"Prévoyance familiale des Lilas"_s, u"Caisse mutuelle des Acacias"_s};

const QStringList professions = {
    u"Infirmière"_s,     u"Technicien"_s,  u"Comptable"_s,  u"Boulanger"_s,
    u"Enseignante"_s,    u"Ingénieur"_s,   u"Vendeuse"_s,   u"Chauffeur"_s,
    u"Aide-soignante"_s, u"Électricien"_s, u"Secrétaire"_s, u"Sans profession"_s,
};
const QStringList csp_professions = {
    u"43"_s, u"47"_s, u"46"_s, u"21"_s, u"42"_s, u"38"_s,
    u"55"_s, u"64"_s, u"52"_s, u"62"_s, u"54"_s, u"85"_s,
};

const QStringList autres_nationalités = {u"Portugaise"_s, u"Marocaine"_s, u"Algérienne"_s,
                                         u"Italienne"_s,  u"Turque"_s,    u"Roumaine"_s};
const QStringList codes_autres_nationalités = {u"99139"_s, u"99350"_s, u"99352"_s,
                                               u"99127"_s, u"99208"_s, u"99114"_s};

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
    QString numéro = portable ? u"0%1"_s.arg(dés.entre(6, 7)) : u"04"_s;
    for (int i = 0; i < 4; ++i)
        numéro += u" %1"_s.arg(dés.entre(0, 99), 2, 10, QLatin1Char('0'));
    return numéro;
}

QString courriel(const QString& prénom, const QString& nom) {
    // An address is written without accents: "claire.andre", not "claire.andré".
    QString adresse;
    for (const QChar c : (prénom + u'.' + nom).toLower().normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            adresse += c == u' ' || c == u'\'' ? u'-' : c;
    return adresse + u"@exemple.fr"_s;
}

QString adresse_de(const Praticien& p) {
    return QString::fromUtf8(p.numéro) + u' ' + rues[p.rue];
}

// The four columns of a doctor or a hospital, copied together as its lookup copies them.
void copier_praticien(Recordset& familles, const QString& colonne, const Praticien& p) {
    familles.setField(colonne, QString::fromUtf8(p.nom));
    familles.setField(u"téléphone_"_s + colonne, QString::fromUtf8(p.téléphone));
    familles.setField(u"adresse_"_s + colonne, adresse_de(p));
    familles.setField(u"ville_"_s + colonne, QString::fromUtf8(villes[p.ville].nom));
}

// The lookups hold every street, insurer, doctor and hospital that the records name; the towns are
// the template's own.
void écrire_listes(Database& base) {
    auto adresses = base.OpenRecordset(u"adresses"_s);
    for (const QString& rue : rues) {
        adresses->AddNew();
        adresses->setField(u"détails"_s, rue);
        adresses->Update();
    }
    auto sociétés = base.OpenRecordset(u"assurances"_s);
    for (const QString& société : assurances) {
        sociétés->AddNew();
        sociétés->setField(u"détails"_s, société);
        sociétés->Update();
    }
    const auto écrire = [&base](const QString& table, const auto& praticiens) {
        auto rs = base.OpenRecordset(table);
        for (const Praticien& p : praticiens) {
            rs->AddNew();
            rs->setField(u"nom"_s, QString::fromUtf8(p.nom));
            rs->setField(u"téléphone"_s, QString::fromUtf8(p.téléphone));
            rs->setField(u"adresse"_s, adresse_de(p));
            rs->setField(u"ville"_s, QString::fromUtf8(villes[p.ville].nom));
            rs->Update();
        }
    };
    écrire(u"médecins"_s, médecins);
    écrire(u"hôpitaux"_s, hôpitaux);
}

struct Famille {
    QString référence, nom, numéro, rue, code_postal, ville, téléphone;
};

Famille écrire_famille(Recordset& familles, Dés& dés, int numéro) {
    Famille f;
    f.référence = u"%1"_s.arg(numéro, 6, 10, QLatin1Char('0'));
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
    familles.setField(u"référence_famille"_s, f.référence);
    familles.setField(u"genre_responsable_légal"_s, mère_d_abord ? u"Madame"_s : u"Monsieur"_s);
    familles.setField(u"nom_responsable_légal"_s, f.nom);
    familles.setField(u"prénom_responsable_légal"_s, prénom1);
    familles.setField(u"profession_responsable_légal"_s, professions[métier1]);
    familles.setField(u"csp_responsable_légal"_s, csp_professions[métier1]);
    familles.setField(u"téléphone_professionnel2_responsable_légal"_s, téléphone(dés, true));
    familles.setField(u"mail_responsable_légal"_s, courriel(prénom1, f.nom));
    familles.setField(u"élection_comité_responsable_légal"_s, dés.chance(80) ? u"oui"_s : u"non"_s);
    familles.setField(u"numéro_responsable"_s, f.numéro);
    familles.setField(u"adresse_responsable"_s, f.rue);
    familles.setField(u"code_postal_responsable"_s, f.code_postal);
    familles.setField(u"ville_responsable"_s, f.ville);
    familles.setField(u"communication_données"_s, dés.chance(85) ? u"oui"_s : u"non"_s);
    familles.setField(u"société_assurance"_s, dés.parmi(assurances));
    familles.setField(u"police_assurance"_s, u"AS-%1"_s.arg(dés.entre(100000, 999999)));
    if (dés.chance(85))
        copier_praticien(familles, u"médecin_traitant"_s,
                         médecins[dés.entre(0, static_cast<int>(médecins.size()) - 1)]);
    if (dés.chance(60))
        copier_praticien(familles, u"hôpital_préférentiel"_s,
                         hôpitaux[dés.entre(0, static_cast<int>(hôpitaux.size()) - 1)]);
    if (dés.chance(75)) {
        const QString prénom2 = dés.parmi(mère_d_abord ? prénoms_adultes_hommes : prénoms_adultes_femmes);
        const int métier2 = dés.entre(0, static_cast<int>(professions.size()) - 1);
        familles.setField(u"situation_familiale"_s, dés.chance(70) ? u"Mariés"_s : u"Pacsés"_s);
        familles.setField(u"genre_conjoint"_s, mère_d_abord ? u"Monsieur"_s : u"Madame"_s);
        familles.setField(u"nom_conjoint"_s, f.nom);
        familles.setField(u"prénom_conjoint"_s, prénom2);
        familles.setField(u"profession_conjoint"_s, professions[métier2]);
        familles.setField(u"csp_conjoint"_s, csp_professions[métier2]);
        familles.setField(u"téléphone_professionnel2_conjoint"_s, téléphone(dés, true));
        familles.setField(u"élection_comité_conjoint"_s, dés.chance(80) ? u"oui"_s : u"non"_s);
        familles.setField(u"numéro_conjoint"_s, f.numéro);
        familles.setField(u"adresse_conjoint"_s, f.rue);
        familles.setField(u"code_postal_conjoint"_s, f.code_postal);
        familles.setField(u"ville_conjoint"_s, f.ville);
    } else {
        familles.setField(u"situation_familiale"_s, dés.chance(50) ? u"Divorcés"_s : u"Célibataire"_s);
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
    élèves.setField(u"matricule"_s, u"%1"_s.arg(matricule, 6, 10, QLatin1Char('0')));
    élèves.setField(u"référence_famille"_s, f.référence);
    élèves.setField(u"nom_élève"_s, f.nom);
    élèves.setField(u"prénom_élève"_s, dés.parmi(garçon ? prénoms_garçons : prénoms_filles));
    élèves.setField(u"date_naissance_élève"_s, naissance);
    élèves.setField(u"lieu_naissance_élève"_s, f.ville);
    élèves.setField(u"sexe_élève"_s, garçon ? u"Masculin"_s : u"Féminin"_s);
    if (dés.chance(90)) {
        élèves.setField(u"nationalité_élève"_s, u"Française"_s);
        élèves.setField(u"code_nationalité_élève"_s, u"99100"_s);
    } else {
        const int n = dés.entre(0, static_cast<int>(autres_nationalités.size()) - 1);
        élèves.setField(u"nationalité_élève"_s, autres_nationalités[n]);
        élèves.setField(u"code_nationalité_élève"_s, codes_autres_nationalités[n]);
    }
    élèves.setField(u"date_inscription_élève"_s, inscription);
    if (dés.chance(4)) {
        élèves.setField(u"date_radiation_élève"_s, rentrée.addDays(dés.entre(20, 200)));
        élèves.setField(u"établissement_accueil"_s, u"École Jules Ferry, Grenoble"_s);
    }
    élèves.setField(u"ainé"_s, ainé);
    élèves.setField(u"référence_classe_élève"_s, classe.référence);
    élèves.setField(u"niveau_classe_élève"_s, QString::fromUtf8(niveau.code));
    élèves.setField(u"cycle_classe_élève"_s, QString::fromUtf8(niveau.cycle));
    if (classe.niveau >= 4)
        élèves.setField(u"langue_vivante_élève"_s, u"Anglais"_s);
    élèves.setField(u"numéro_résidence"_s, f.numéro);
    élèves.setField(u"adresse_résidence"_s, f.rue);
    élèves.setField(u"code_postal_résidence"_s, f.code_postal);
    élèves.setField(u"ville_résidence"_s, f.ville);
    élèves.setField(u"téléphone1_résidence"_s, f.téléphone);
    élèves.setField(u"nom_contact1"_s, dés.parmi(noms));
    élèves.setField(u"prénom_contact1"_s, dés.parmi(prénoms_adultes_femmes));
    élèves.setField(u"téléphone_contact1"_s, téléphone(dés, true));
    élèves.setField(u"vaccinations"_s, u"à jour"_s);
    if (dés.chance(8))
        élèves.setField(u"allergies"_s, u"arachide"_s);
    élèves.setField(u"restauration_scolaire"_s, dés.chance(70) ? u"oui"_s : u"non"_s);
    élèves.setField(u"coopérative_scolaire"_s, dés.chance(90) ? u"payée"_s : u"non payée"_s);
    élèves.setField(u"participation_usep"_s, dés.chance(40) ? u"oui"_s : u"non"_s);
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
    auto équipe = base.OpenRecordset(u"équipe"_s);
    for (const Classe& classe : classes) {
        const bool femme = dés.chance(80);
        const QString nom = dés.parmi(noms);
        const QString prénom = dés.parmi(femme ? prénoms_adultes_femmes : prénoms_adultes_hommes);
        équipe->AddNew();
        équipe->setField(u"genre_enseignant"_s, femme ? u"Madame"_s : u"Monsieur"_s);
        équipe->setField(u"nom_enseignant"_s, nom);
        équipe->setField(u"prénom_enseignant"_s, prénom);
        équipe->setField(u"mail_enseignant"_s, courriel(prénom, nom));
        équipe->setField(u"référence_classe_enseignant"_s, classe.référence);
        équipe->setField(u"niveau_classe_enseignant"_s, QString::fromUtf8(niveaux[classe.niveau].code));
        équipe->setField(u"cycle_classe_enseignant"_s, QString::fromUtf8(niveaux[classe.niveau].cycle));
        équipe->Update();
    }
}

void écrire_école(Database& base) {
    auto école = base.OpenRecordset(u"école"_s);
    école->AddNew();
    école->setField(u"nom_école"_s, u"École primaire des Tilleuls"_s);
    école->setField(u"numéro_école"_s, u"12"_s);
    école->setField(u"adresse_école"_s, u"rue des Écoles"_s);
    école->setField(u"code_postal_école"_s, u"69100"_s);
    école->setField(u"ville_école"_s, u"Villeurbanne"_s);
    école->setField(u"adresse2_école"_s, u"BP 12"_s);
    école->setField(u"téléphone_école"_s, u"04 00 00 00 00"_s);
    école->setField(u"télécopie_école"_s, u"04 00 00 00 01"_s);
    école->setField(u"mail_école"_s, u"ecole.tilleuls@exemple.fr"_s);
    école->setField(u"rne_école"_s, u"0699999Z"_s);
    école->setField(u"genre_directeur_école"_s, u"Madame"_s);
    école->setField(u"nom_directeur_école"_s, u"Lambert"_s);
    école->setField(u"prénom_directeur_école"_s, u"Claire"_s);
    école->setField(u"titre_directeur"_s, u"Directrice"_s);
    école->setField(u"politesse_directeur"_s, u"Madame la Directrice"_s);
    école->Update();

    auto inspection = base.OpenRecordset(u"inspection"_s);
    inspection->AddNew();
    inspection->setField(u"nom_inspection"_s, u"Circonscription de Villeurbanne Nord"_s);
    inspection->setField(u"numéro_inspection"_s, u"4"_s);
    inspection->setField(u"adresse_inspection"_s, u"place de la Mairie"_s);
    inspection->setField(u"adresse2_inspection"_s, u"2e étage"_s);
    inspection->setField(u"code_postal_inspection"_s, u"69100"_s);
    inspection->setField(u"ville_inspection"_s, u"Villeurbanne"_s);
    inspection->setField(u"téléphone_inspection"_s, u"04 00 00 00 10"_s);
    inspection->setField(u"mail_inspection"_s, u"ien.villeurbanne-nord@exemple.fr"_s);
    inspection->setField(u"rne_inspection"_s, u"0699998Y"_s);
    inspection->setField(u"genre_inpecteur"_s, u"Monsieur"_s);
    inspection->setField(u"prénom_inspecteur"_s, u"Marc"_s);
    inspection->setField(u"nom_inspecteur"_s, u"Fontaine"_s);
    inspection->setField(u"politesse_inspecteur"_s, u"Monsieur l'Inspecteur"_s);
    inspection->setField(u"titre_inspecteur"_s, u"Inspecteur de l'Education Nationale"_s);
    inspection->Update();
}

// A few free fields named, as a school names those it uses; the others keep no caption.
void écrire_champs_paramétrables(Database& base) {
    const char* const champs[][2] = {
        {"Garde périscolaire", "Jours de garderie du matin ou du soir"},
        {"Transport scolaire", "Ligne et arrêt du car scolaire"},
        {"PAI", "Projet d'accueil individualisé : date et objet"},
        {"Étude surveillée", "Jours d'étude surveillée"},
        {"Suivi", "Observations de l'équipe éducative"},
    };
    auto paramètres = base.OpenRecordset(u"paramètres"_s);
    paramètres->AddNew();
    for (int i = 0; i < 5; ++i) {
        const QString n = QString::number(i + 1);
        paramètres->setField(u"intitulé_champ_paramétrable"_s + n, QString::fromUtf8(champs[i][0]));
        paramètres->setField(u"infobulle_champ_paramétrable"_s + n, QString::fromUtf8(champs[i][1]));
    }
    paramètres->Update();
}

} // namespace

void remplir_démonstration(Database& base, const Démonstration& options) {
    Dés dés(options.graine);
    const std::vector<Classe> classes = classes_pour(options.élèves);
    base.BeginTrans();
    try {
        écrire_listes(base);
        écrire_école(base);
        écrire_champs_paramétrables(base);
        écrire_équipe(base, dés, classes);
        auto familles = base.OpenRecordset(u"familles"_s);
        auto élèves = base.OpenRecordset(u"élèves"_s);
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
    const auto littéral = [](QString texte) { return u'\'' + texte.replace(u'\'', u"''"_s) + u'\''; };
    QStringList valeurs;
    for (const QString& ligne : tableau.split(u'\n', Qt::SkipEmptyParts).mid(1)) {
        const QStringList cellules = ligne.split(u'\t');
        if (cellules.size() == 2)
            valeurs << u'(' + littéral(cellules[0]) + u", "_s + littéral(cellules[1]) + u')';
    }
    QString sql;
    for (qsizetype début = 0; début < valeurs.size(); début += lignes_par_insertion)
        sql += u"INSERT INTO villes (code_postal, détails) VALUES "_s +
               valeurs.mid(début, lignes_par_insertion).join(u", "_s) + u";\n"_s;
    return sql;
}

} // namespace

QStringList scripts_modèle() {
    return {texte_ressource(u":/modele/schema.sql"_s), texte_ressource(u":/modele/seed.sql"_s),
            insertions_villes(texte_ressource(u":/modele/villes.tsv"_s))};
}
