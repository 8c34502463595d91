// Letters: the 21 formulas of a pupil's letter as one table, for a pupil with a family, without one and
// with a reference that matches nothing; the guardian's block governed by the date's box alone; an
// unsaved edit in the letter; a quote failing into the box; the letter printed; the preview's samples.
#include "Etats.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Feuilles.h"
#include "platform/report/ReportJob.h"
#include "reference/feuille_ecole.h"
#include "reports/feuille_documents.h"
#include "shell/MDIForm1.h"
#include "shell/commandes.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// Two templates: "Tout" with every text and every box but the guardian's, "Rien" with the guardian's
// box alone.
const char* const modèles =
    "INSERT INTO documents VALUES ('Tout', 'Objet', 'Madame, Monsieur,', 'P1', 'P2\nsuite', 'P3', 'P4', "
    "'P5', 'P6', 'Salutations', 'PS', 1, 0, 1, 1, 1), ('Rien', '', '', '', '', '', '', '', '', '', '', 0, 1, "
    "0, "
    "0, 0)";

class Lettres : public ÉtatsTest {
protected:
    feuille_élève* élève = nullptr;

    void SetUp() override {
        ÉtatsTest::SetUp();
        exécuter_par_le_moteur(base, u"DELETE FROM documents"_s);
        exécuter_par_le_moteur(base, QString::fromUtf8(modèles));
        exécuter_commande(feuilles().get<MDIForm1>(), u"menuenfantsindex1"_s);
        élève = feuilles().siChargée<feuille_élève>();
        élève->Check1->setChecked(false);
    }
    static Feuilles& feuilles() { return module1().feuilles(); }
    // The template picked in the list, then "Imprimer le document sélectionné".
    void choisir(const QString& modèle) {
        for (int ligne = 0; ligne < élève->grdDataGrid->model()->rowCount(); ++ligne)
            if (élève->grdDataGrid->model()->index(ligne, 0).data().toString() == modèle)
                élève->grdDataGrid->setCurrentIndex(élève->grdDataGrid->model()->index(ligne, 0));
    }
    void lettre(const QString& modèle) {
        choisir(modèle);
        cliquer(*élève, u"documents_suite"_s);
    }
    // A field's text on the screens the letter reads.
    QString champ(const QString& nom) const {
        const std::pair<const char*, const char*> alias[] = {
            {"numéro_responsable", "Text3"},   {"adresse_responsable", "Text2"},
            {"adresse2_responsable", "Text1"}, {"code_postal_responsable", "Text5"},
            {"ville_responsable", "Text4"},    {"titre_directeur", "Text2"}};
        QString objet = nom;
        for (const auto& [colonne, contrôle] : alias)
            if (nom == QString::fromUtf8(colonne))
                objet = QString::fromUtf8(contrôle);
        const bool école = nom.endsWith(u"école"_s) || nom.contains(u"directeur"_s);
        for (Feuille* f :
             {école ? static_cast<Feuille*>(&feuilles().get<feuille_école>())
                    : static_cast<Feuille*>(&feuilles().get<feuille_famille>()),
              static_cast<Feuille*>(élève), static_cast<Feuille*>(&feuilles().get<feuille_documents>())}) {
            if (auto* l = f->findChild<QLineEdit*>(objet))
                return l->text();
            if (auto* z = f->findChild<QPlainTextEdit*>(objet))
                return z->toPlainText();
        }
        return u"<inconnu: %1>"_s.arg(nom);
    }
    // The 21 formulas the table gives for the screens as they stand.
    QStringList attendues(bool famille) const {
        const feuille_documents& d = feuilles().get<feuille_documents>();
        const QCheckBox* cases[] = {d.Check1, d.Check2, d.Check3, d.Check4, d.Check5};
        QStringList f;
        for (const QStringList& r : table_de_données(u"formules_lettre.tsv"_s)) {
            bool condition = true;
            for (const QString& c : r[2].split(u' ')) {
                if (c == u"famille"_s)
                    condition = condition && famille;
                else if (c.startsWith(u"Check"_s))
                    condition = condition && cases[c.mid(5).toInt() - 1]->isChecked();
                else
                    condition = condition && !champ(c).isEmpty();
            }
            QString texte = r[1];
            texte.replace(u"{aujourdhui}"_s, module1().horloge().aujourdhui().toString(u"dd/MM/yyyy"_s));
            static const QRegularExpression place(u"\\{(\\w+)\\}"_s,
                                                  QRegularExpression::UseUnicodePropertiesOption);
            for (auto m = place.globalMatch(r[1]); m.hasNext();) {
                const QString nom = m.next().captured(1);
                texte.replace(u'{' + nom + u'}', champ(nom));
            }
            f << (condition ? texte : QString());
        }
        return f;
    }
    static QStringList formules() {
        QStringList f;
        for (int i = 0; i < 21; ++i)
            f << job().Formulas(i);
        return f;
    }
};

TEST_F(Lettres, TheTwentyOneFormulasForAPupilWithAFamilyWithoutOneAndWithAnUnknownOne) {
    for (const char* modèle : {"Tout", "Rien"}) {
        SCOPED_TRACE(modèle);
        élève->datPrimaryRS->Recordset().MoveFirst();
        const QString référence = élève->référence_famille->text();
        ASSERT_FALSE(référence.isEmpty());
        élève->prénom_enfant->setText(u"Prénom non enregistré"_s);
        lettre(u(modèle));
        EXPECT_EQ(formules(), attendues(true));
        EXPECT_TRUE(job().Formulas(10).isEmpty() || job().Formulas(10).contains(u"Prénom non enregistré"_s));
        élève->référence_famille->clear();
        lettre(u(modèle));
        EXPECT_EQ(formules(), attendues(false));
        élève->référence_famille->setText(u"999999"_s);
        ui().expectMsgBox(vbNo);
        lettre(u(modèle));
        EXPECT_EQ(ui().lastBox().text, u"La fiche de la famille n'existe pas... Créez-la!"_s);
        EXPECT_EQ(formules(), attendues(true));
        élève->référence_famille->setText(référence);
    }
    EXPECT_EQ(job().Destination, ReportJob::toWindow);
    EXPECT_EQ(job().WindowState, ReportJob::maximised);
    EXPECT_EQ(job().SelectionFormula, u"{documents.intitulé_bouton} = \"Rien\""_s);
}

TEST_F(Lettres, PrintedStraightWithItsBlocksOrFailingOnAQuoteOrAMissingTemplate) {
    const QString pdf = imprimer_dans_un_pdf();
    élève->Check1->setChecked(true);
    lettre(u"Tout"_s);
    const QString texte = texte_pdf(pdf).simplified();
    for (const QString& attendu : {élève->nom_enfant->text(), champ(u"nom_responsable_légal"_s),
                                   u"P2 suite"_s, champ(u"nom_école"_s), u"Salutations"_s})
        EXPECT_TRUE(texte.contains(attendu)) << attendu.toStdString();

    exécuter_par_le_moteur(
        base, u"UPDATE documents SET titre_document = 'Le \"bon\" titre' WHERE intitulé_bouton = 'Tout'"_s);
    ui().expectMsgBox();
    lettre(u"Tout"_s);
    EXPECT_TRUE(
        ui().lastBox().text.startsWith(u"Le gestionnaire d'erreurs des données a rencontré l'erreur : "_s));

    choisir(u"Rien"_s);
    exécuter_par_le_moteur(base, u"DELETE FROM documents WHERE intitulé_bouton = 'Rien'"_s);
    ui().expectMsgBox();
    cliquer(*élève, u"documents_suite"_s);
    // The list reads the deleted row's title as empty: the template is missing all the same.
    EXPECT_TRUE(ui().lastBox().text.endsWith(
        u"\" n'a pas été trouvé dans la table des documents... Opération impossible!"_s));
}

TEST_F(Lettres, ThePreviewShowsTheSampleValuesAroundTheTemplate) {
    exécuter_commande(feuilles().get<MDIForm1>(), u"menuparamètresindex4"_s);
    feuille_documents& d = feuilles().get<feuille_documents>();
    cliquer(d, u"Command2"_s);
    const QString jour = module1().horloge().aujourdhui().toString(u"dd/MM/yyyy"_s);
    EXPECT_EQ(job().Formulas(0), u"date_contrôlée= \"VILLE, "_s + jour + u'"');
    EXPECT_EQ(job().Formulas(1), u"nom_responsable_contrôlé=\"Monsieur Xxxx-Xxxxx XXXXXXXXXX\""_s);
    EXPECT_EQ(job().Formulas(8),
              u"nom_directeur_contrôlé= \"MONSIEUR ZZZZZZZZZZ ZZZZZZZZZZZZZZZ, Directeur\""_s);
    EXPECT_EQ(
        job().Formulas(12),
        u"élève_contrôlé3= \"Date de naissance : 00/00/0000 - Lieu de naissance : VILLE_NAISSANCE_ENFANT\""_s);
    EXPECT_EQ(job().Formulas(19), u"cachet_contrôlé= \"00000 - VILLE\""_s);
    EXPECT_EQ(job().Formulas(7), u"paragraphe1= \"P1\""_s);
}

} // namespace
