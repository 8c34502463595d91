-- The work database: 21 tables, created by norvane-prepare into basevide.mdz.
--
-- Types: VARCHAR(n) is a text column of at most n characters (the entry limit of the box that
-- shows it), LONGTEXT a text without limit (a memo), DATE a date kept as 'AAAA-MM-JJ' text so that it
-- sorts by date, BOOLEAN a yes/no column (0 or 1). Every text type names TEXT or CHAR, so that the
-- engine keeps "000001" as text and never turns it into a number. Text compares with the collation FR
-- (case and accents ignored); its order is that of the store's sort key tri_fr() (French order).
-- A lookup column is never longer than the boxes it feeds. The two record numbers, matricule and
-- référence_famille, take the longest text instead: the program counts them up past what their boxes
-- let a user type, and a number must reach the file whole.

-- Pages of 16 KiB: compaction and whole-table searches move fewer, larger blocks.
PRAGMA page_size = 16384;

-- One row a pupil.
CREATE TABLE élèves (
    matricule              VARCHAR(255) COLLATE FR,
    référence_famille      LONGTEXT COLLATE FR,
    nom_élève              VARCHAR(30) COLLATE FR,
    prénom_élève           VARCHAR(30) COLLATE FR,
    date_naissance_élève   DATE,
    lieu_naissance_élève   VARCHAR(50) COLLATE FR,
    sexe_élève             VARCHAR(8) COLLATE FR,
    nationalité_élève      VARCHAR(30) COLLATE FR,
    code_nationalité_élève VARCHAR(5) COLLATE FR,
    date_inscription_élève DATE,
    date_radiation_élève   DATE,
    établissement_accueil  VARCHAR(50) COLLATE FR,
    ainé                   BOOLEAN NOT NULL DEFAULT 0,
    chemin_photo           VARCHAR(254) COLLATE FR,
    référence_classe_élève VARCHAR(5) COLLATE FR,
    niveau_classe_élève    VARCHAR(10) COLLATE FR,
    cycle_classe_élève     VARCHAR(1) COLLATE FR,
    cursus_allongé_élève   VARCHAR(50) COLLATE FR,
    saisine_ccpe_élève     VARCHAR(50) COLLATE FR,
    langue_vivante_élève   VARCHAR(30) COLLATE FR,
    numéro_résidence       VARCHAR(10) COLLATE FR,
    adresse_résidence      VARCHAR(50) COLLATE FR,
    adresse2_résidence     VARCHAR(50) COLLATE FR,
    code_postal_résidence  VARCHAR(8) COLLATE FR,
    ville_résidence        VARCHAR(50) COLLATE FR,
    téléphone1_résidence   VARCHAR(20) COLLATE FR,
    téléphone2_résidence   VARCHAR(20) COLLATE FR,
    nom_contact1           VARCHAR(30) COLLATE FR,
    prénom_contact1        VARCHAR(30) COLLATE FR,
    téléphone_contact1     VARCHAR(20) COLLATE FR,
    nom_contact2           VARCHAR(30) COLLATE FR,
    prénom_contact2        VARCHAR(30) COLLATE FR,
    téléphone_contact2     VARCHAR(20) COLLATE FR,
    nom_contact3           VARCHAR(30) COLLATE FR,
    prénom_contact3        VARCHAR(30) COLLATE FR,
    téléphone_contact3     VARCHAR(20) COLLATE FR,
    nom_contact4           VARCHAR(30) COLLATE FR,
    prénom_contact4        VARCHAR(30) COLLATE FR,
    téléphone_contact4     VARCHAR(20) COLLATE FR,
    nom_contact5           VARCHAR(30) COLLATE FR,
    prénom_contact5        VARCHAR(30) COLLATE FR,
    téléphone_contact5     VARCHAR(20) COLLATE FR,
    vaccinations           VARCHAR(50) COLLATE FR,
    allergies              VARCHAR(50) COLLATE FR,
    contre_indications     VARCHAR(50) COLLATE FR,
    observations_médicales LONGTEXT COLLATE FR,
    observations_générales LONGTEXT COLLATE FR,
    participation_usep     VARCHAR(20) COLLATE FR,
    restauration_scolaire  VARCHAR(30) COLLATE FR,
    coopérative_scolaire   VARCHAR(30) COLLATE FR,
    champ_paramétable1     VARCHAR(50) COLLATE FR,
    champ_paramétable2     VARCHAR(50) COLLATE FR,
    champ_paramétable3     VARCHAR(50) COLLATE FR,
    champ_paramétable4     VARCHAR(50) COLLATE FR,
    champ_paramétable5     LONGTEXT COLLATE FR,
    champ_paramétable6     VARCHAR(50) COLLATE FR,
    champ_paramétable7     VARCHAR(50) COLLATE FR,
    champ_paramétable8     VARCHAR(50) COLLATE FR,
    champ_paramétable9     LONGTEXT COLLATE FR,
    champ_paramétable10    LONGTEXT COLLATE FR
);

-- One row a family: the legal guardian (Parent 1) and the spouse (Parent 2).
CREATE TABLE familles (
    référence_famille                          VARCHAR(255) COLLATE FR,
    genre_responsable_légal                    VARCHAR(20) COLLATE FR,
    nom_responsable_légal                      VARCHAR(30) COLLATE FR,
    prénom_responsable_légal                   VARCHAR(30) COLLATE FR,
    profession_responsable_légal               VARCHAR(50) COLLATE FR,
    csp_responsable_légal                      VARCHAR(2) COLLATE FR,
    employeur_responsable_légal                VARCHAR(50) COLLATE FR,
    téléphone_professionnel1_responsable_légal VARCHAR(20) COLLATE FR,
    téléphone_professionnel2_responsable_légal VARCHAR(20) COLLATE FR,
    mail_responsable_légal                     VARCHAR(50) COLLATE FR,
    élection_comité_responsable_légal          VARCHAR(3) COLLATE FR,
    numéro_responsable                         VARCHAR(10) COLLATE FR,
    adresse_responsable                        VARCHAR(50) COLLATE FR,
    adresse2_responsable                       VARCHAR(50) COLLATE FR,
    code_postal_responsable                    VARCHAR(8) COLLATE FR,
    ville_responsable                          VARCHAR(50) COLLATE FR,
    situation_familiale                        VARCHAR(50) COLLATE FR,
    genre_conjoint                             VARCHAR(20) COLLATE FR,
    nom_conjoint                               VARCHAR(30) COLLATE FR,
    prénom_conjoint                            VARCHAR(30) COLLATE FR,
    profession_conjoint                        VARCHAR(50) COLLATE FR,
    csp_conjoint                               VARCHAR(2) COLLATE FR,
    employeur_conjoint                         VARCHAR(50) COLLATE FR,
    téléphone_professionnel1_conjoint          VARCHAR(20) COLLATE FR,
    téléphone_professionnel2_conjoint          VARCHAR(20) COLLATE FR,
    mail_conjoint                              VARCHAR(50) COLLATE FR,
    élection_comité_conjoint                   VARCHAR(3) COLLATE FR,
    numéro_conjoint                            VARCHAR(10) COLLATE FR,
    adresse_conjoint                           VARCHAR(50) COLLATE FR,
    adresse2_conjoint                          VARCHAR(50) COLLATE FR,
    code_postal_conjoint                       VARCHAR(8) COLLATE FR,
    ville_conjoint                             VARCHAR(50) COLLATE FR,
    communication_données                      VARCHAR(3) COLLATE FR,
    société_assurance                          VARCHAR(50) COLLATE FR,
    police_assurance                           VARCHAR(30) COLLATE FR,
    observations_assurance                     LONGTEXT COLLATE FR,
    médecin_traitant                           VARCHAR(50) COLLATE FR,
    téléphone_médecin_traitant                 VARCHAR(20) COLLATE FR,
    adresse_médecin_traitant                   VARCHAR(50) COLLATE FR,
    ville_médecin_traitant                     VARCHAR(30) COLLATE FR,
    hôpital_préférentiel                       VARCHAR(50) COLLATE FR,
    téléphone_hôpital_préférentiel             VARCHAR(20) COLLATE FR,
    adresse_hôpital_préférentiel               VARCHAR(50) COLLATE FR,
    ville_hôpital_préférentiel                 VARCHAR(30) COLLATE FR
);

-- The school's single sheet.
CREATE TABLE école (
    nom_école              VARCHAR(50) COLLATE FR,
    numéro_école           VARCHAR(10) COLLATE FR,
    adresse_école          VARCHAR(50) COLLATE FR,
    adresse2_école         VARCHAR(50) COLLATE FR,
    code_postal_école      VARCHAR(8) COLLATE FR,
    ville_école            VARCHAR(50) COLLATE FR,
    téléphone_école        VARCHAR(20) COLLATE FR,
    télécopie_école        VARCHAR(20) COLLATE FR,
    mail_école             VARCHAR(50) COLLATE FR,
    rne_école              VARCHAR(20) COLLATE FR,
    genre_directeur_école  VARCHAR(20) COLLATE FR,
    nom_directeur_école    VARCHAR(30) COLLATE FR,
    prénom_directeur_école VARCHAR(30) COLLATE FR,
    titre_directeur        VARCHAR(30) COLLATE FR,
    politesse_directeur    VARCHAR(30) COLLATE FR
);

-- The inspection district's single sheet.
CREATE TABLE inspection (
    nom_inspection         VARCHAR(50) COLLATE FR,
    numéro_inspection      VARCHAR(10) COLLATE FR,
    adresse_inspection     VARCHAR(50) COLLATE FR,
    adresse2_inspection    VARCHAR(50) COLLATE FR,
    code_postal_inspection VARCHAR(8) COLLATE FR,
    ville_inspection       VARCHAR(50) COLLATE FR,
    téléphone_inspection   VARCHAR(20) COLLATE FR,
    télécopie_inspection   VARCHAR(20) COLLATE FR,
    mail_inspection        VARCHAR(50) COLLATE FR,
    rne_inspection         VARCHAR(20) COLLATE FR,
    genre_inpecteur        VARCHAR(20) COLLATE FR,
    nom_inspecteur         VARCHAR(30) COLLATE FR,
    prénom_inspecteur      VARCHAR(30) COLLATE FR,
    titre_inspecteur       VARCHAR(50) COLLATE FR,
    politesse_inspecteur   VARCHAR(50) COLLATE FR
);

-- One row a teacher and, through the class columns, the list of classes.
CREATE TABLE équipe (
    genre_enseignant            VARCHAR(20) COLLATE FR,
    nom_enseignant              VARCHAR(30) COLLATE FR,
    prénom_enseignant           VARCHAR(30) COLLATE FR,
    numéro_enseignant           VARCHAR(10) COLLATE FR,
    adresse1_enseignant         VARCHAR(50) COLLATE FR,
    adresse2_enseignant         VARCHAR(50) COLLATE FR,
    code_postal_enseignant      VARCHAR(8) COLLATE FR,
    ville_enseignant            VARCHAR(50) COLLATE FR,
    téléphone1_enseignant       VARCHAR(20) COLLATE FR,
    téléphone2_enseignant       VARCHAR(20) COLLATE FR,
    mail_enseignant             VARCHAR(50) COLLATE FR,
    référence_classe_enseignant VARCHAR(5) COLLATE FR,
    niveau_classe_enseignant    VARCHAR(10) COLLATE FR,
    cycle_classe_enseignant     VARCHAR(1) COLLATE FR
);

-- Lookup tables: one row a value offered to a field.

-- One row a letter template.
CREATE TABLE documents (
    intitulé_bouton                         VARCHAR(30) COLLATE FR,
    destinataire_document                   VARCHAR(50) COLLATE FR,
    titre_document                          VARCHAR(50) COLLATE FR,
    paragraphe1_document                    VARCHAR(254) COLLATE FR,
    paragraphe2_document                    VARCHAR(254) COLLATE FR,
    paragraphe3_document                    VARCHAR(254) COLLATE FR,
    paragraphe4_document                    VARCHAR(254) COLLATE FR,
    paragraphe5_document                    VARCHAR(254) COLLATE FR,
    paragraphe6_document                    VARCHAR(254) COLLATE FR,
    politesse_document                      VARCHAR(254) COLLATE FR,
    post_scriptum                           VARCHAR(254) COLLATE FR,
    affichage_coordonnées_élève             BOOLEAN NOT NULL DEFAULT 0,
    affichage_coordonnées_responsable_légal BOOLEAN NOT NULL DEFAULT 0,
    affichage_coordonnées_directeur         BOOLEAN NOT NULL DEFAULT 0,
    affichage_signature_directeur           BOOLEAN NOT NULL DEFAULT 0,
    affichage_date                          BOOLEAN NOT NULL DEFAULT 0
);

-- Captions and tooltips of the ten free fields of élèves.
CREATE TABLE paramètres (
    intitulé_champ_paramétrable1   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable2   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable3   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable4   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable5   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable6   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable7   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable8   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable9   VARCHAR(20) COLLATE FR,
    intitulé_champ_paramétrable10  VARCHAR(20) COLLATE FR,
    infobulle_champ_paramétrable1  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable2  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable3  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable4  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable5  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable6  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable7  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable8  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable9  VARCHAR(50) COLLATE FR,
    infobulle_champ_paramétrable10 VARCHAR(50) COLLATE FR
);

-- The file's access code, in clear; empty when the file has none.
CREATE TABLE passe (
    passe VARCHAR(10) COLLATE FR
);

CREATE TABLE adresses (
    détails VARCHAR(50) COLLATE FR
);

CREATE TABLE assertions (
    détails VARCHAR(3) COLLATE FR
);

CREATE TABLE assurances (
    détails VARCHAR(50) COLLATE FR
);

CREATE TABLE csp (
    code    VARCHAR(2) COLLATE FR,
    détails VARCHAR(255) COLLATE FR
);

CREATE TABLE genres (
    détails VARCHAR(20) COLLATE FR
);

CREATE TABLE hôpitaux (
    nom       VARCHAR(50) COLLATE FR,
    téléphone VARCHAR(20) COLLATE FR,
    adresse   VARCHAR(50) COLLATE FR,
    ville     VARCHAR(30) COLLATE FR
);

CREATE TABLE langues_vivantes (
    détails VARCHAR(30) COLLATE FR
);

CREATE TABLE médecins (
    nom       VARCHAR(50) COLLATE FR,
    téléphone VARCHAR(20) COLLATE FR,
    adresse   VARCHAR(50) COLLATE FR,
    ville     VARCHAR(30) COLLATE FR
);

CREATE TABLE nationalités (
    détails VARCHAR(30) COLLATE FR,
    code    VARCHAR(5) COLLATE FR
);

CREATE TABLE niveaux (
    code    VARCHAR(10) COLLATE FR,
    détails VARCHAR(50) COLLATE FR,
    cycle   VARCHAR(1) COLLATE FR
);

CREATE TABLE sexe (
    détails VARCHAR(8) COLLATE FR
);

CREATE TABLE situations_familiales (
    détails VARCHAR(50) COLLATE FR
);

CREATE TABLE villes (
    code_postal VARCHAR(8) COLLATE FR,
    détails     VARCHAR(50) COLLATE FR
);

-- The orders that opening the pupil and family screens and adding a record use, kept ready. They are
-- indexes on the store's French sort key tri_fr(), which the other orders compute when they are asked.
-- The keys depend on the collator's version: the base records it (user_version), and the store rebuilds
-- these indexes at opening when it differs.
CREATE INDEX élèves_par_matricule ON élèves (tri_fr(matricule));
CREATE INDEX élèves_par_nom ON élèves (tri_fr(nom_élève, prénom_élève));
CREATE INDEX familles_par_nom ON familles (tri_fr(nom_responsable_légal, prénom_responsable_légal));
CREATE INDEX familles_par_référence ON familles (tri_fr(référence_famille));

-- Two pupils never share a matricule; a pupil made from the family screen has none until it is typed.
-- Families may share a reference: the family screen lets the user type one that exists.
CREATE UNIQUE INDEX élèves_matricule_unique ON élèves (matricule) WHERE matricule <> '';
