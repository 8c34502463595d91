#include "shell/options.h"

#include "platform/ui/ErrorBoxes.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_options.h"
#include "shell/fichier_options.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int erreur_fichier_déjà_ouvert = 55;
constexpr int erreur_accès_chemin = 75;

QString chemin_options() {
    return module1().chemin_application + u"options.ini"_s;
}

// A child screen cannot exist without the main window: the first touch of the options brings it up,
// and its own load reads the options in its turn, before this reading goes on.
feuille_options& options_chargées() {
    feuilles().get<MDIForm1>();
    return feuilles().get<feuille_options>();
}

// The file stays open after a failed reading, as the classic runtime leaves it: the next reading or
// writing of this run meets it.
void vérifier_fichier_fermé() {
    if (const MDIForm1* mdi = feuilles().siChargée<MDIForm1>(); mdi && mdi->fichier_options_resté_ouvert)
        throw VbError(erreur_fichier_déjà_ouvert);
}

void laisser_ouvert(const QString& chemin) {
    auto fichier = std::make_unique<QFile>(chemin);
    if (!fichier->open(QIODevice::ReadOnly))
        return;
    if (MDIForm1* mdi = feuilles().siChargée<MDIForm1>())
        mdi->fichier_options_resté_ouvert = std::move(fichier);
}

QCheckBox* case_numéro(feuille_options& options, int i) {
    QCheckBox* cases[] = {options.Check1, options.Check2, options.Check3, options.Check4};
    return cases[i];
}

} // namespace

int valeur_case(const QCheckBox* caseàcocher) {
    switch (caseàcocher->checkState()) {
    case Qt::Checked:
        return 1;
    case Qt::PartiallyChecked:
        return 2;
    default:
        return 0;
    }
}

void fixer_case(QCheckBox* caseàcocher, int valeur) {
    if (valeur == 2)
        caseàcocher->setTristate(true);
    caseàcocher->setCheckState(valeur == 1   ? Qt::Checked
                               : valeur == 2 ? Qt::PartiallyChecked
                                             : Qt::Unchecked);
}

void lire_options() {
    avec_piège(ErrorBoxKind::données, [] {
        const QString chemin = chemin_options();
        if (!QFile::exists(chemin)) {
            écrire_options();
            return;
        }
        feuille_options& options = options_chargées();
        vérifier_fichier_fermé();
        QFile fichier(chemin);
        if (!fichier.open(QIODevice::ReadOnly))
            throw VbError(erreur_accès_chemin);
        const LectureOptions lecture = lire_texte_options(fichier.readAll());
        fichier.close();
        // The values go in place one after the other: what was read before a failure stays.
        Module1& m = module1();
        for (int i = 0; i < lecture.valeurs.size(); ++i) {
            if (i < 4) {
                try {
                    fixer_case(case_numéro(options, i), indicateur_lu(lecture.valeurs[i]));
                } catch (const VbError&) {
                    laisser_ouvert(chemin);
                    throw;
                }
            } else {
                m.base_en_cours = lecture.valeurs[i];
                feuilles().get<feuille_choix_base>().Label4->setText(lecture.valeurs[i]);
            }
        }
        if (lecture.erreur) {
            laisser_ouvert(chemin);
            throw *lecture.erreur;
        }
    });
}

void écrire_options() {
    avec_piège(ErrorBoxKind::données, [] {
        feuille_options& options = options_chargées();
        vérifier_fichier_fermé();
        ContenuOptions contenu;
        for (int i = 0; i < 4; ++i)
            contenu.indicateurs[i] = valeur_case(case_numéro(options, i));
        contenu.base = module1().base_en_cours;
        const QString chemin = chemin_options();
        if (QFile::exists(chemin) && !QFile::remove(chemin))
            throw VbError(erreur_accès_chemin);
        QFile fichier(chemin);
        if (!fichier.open(QIODevice::WriteOnly))
            throw VbError(erreur_accès_chemin);
        const QByteArray texte = texte_options(contenu);
        if (fichier.write(texte) != texte.size() || !fichier.flush())
            throw VbError(erreur_accès_chemin);
    });
}
