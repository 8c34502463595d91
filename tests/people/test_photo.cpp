// The pupil's photo: the picture follows the record, a missing file leaves the frame empty and a file
// that is no image says so; the picker's three steps (a change of folder clears the choice, a click
// makes it, "&Accepter" gives it to the pupil).
#include "support/Programme.h"

#include "generator/Portraits.h"
#include "people/feuille_choix_photo.h"
#include "people/feuille_eleve.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/ListesFichiers.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

class Photo : public ProgrammeSurModèle {
protected:
    QString image(const char* nom) {
        const QString chemin = folder.file(u(nom));
        portrait(7, QSize(60, 75), true).save(chemin, "JPG");
        return chemin;
    }
    void élève_avec_photo(const char* matricule, const QString& chemin) {
        ajouter_élève(u(matricule));
        exécuter_par_le_moteur(
            base,
            u("UPDATE élèves SET chemin_photo = '%1' WHERE matricule = '%2'").arg(chemin, u(matricule)));
    }
    static bool montrée(const QLabel& l) { return !l.pixmap().isNull(); }
};

TEST_F(Photo, ThePictureFollowsTheRecordAndAFileThatIsNoImageSaysSo) {
    élève_avec_photo("000001", image("a.jpg"));
    élève_avec_photo("000002", folder.file(u("partie.jpg")));
    élève_avec_photo("000003", folder.write(u("faux.jpg"), "pas une image"));
    feuille_élève& f = ouvrir_élève();
    EXPECT_TRUE(montrée(*f.photo));
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_FALSE(montrée(*f.photo));
    ui().expectMsgBox();
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_TRUE(ui().lastBox().text.startsWith(u("Le logiciel a rencontré l'erreur : 481")));
    EXPECT_EQ(f.matricule->text(), u("000003"));
    cliquer(*f.datPrimaryRS, u("premier"));
    EXPECT_TRUE(montrée(*f.photo));
}

TEST_F(Photo, ThePickerClearsOnAFolderChangeSetsOnAClickAndGivesOnAccept) {
    ajouter_élève(u("000001"));
    const QString b = image("B.JPG");
    image("c.gif.png");
    QDir(folder.path()).mkdir(u("sous"));
    feuille_élève& f = ouvrir_élève();
    cliquer(f, u("Command14"));
    auto* choix = module1().feuilles().siChargée<feuille_choix_photo>();
    ASSERT_NE(choix, nullptr);
    EXPECT_TRUE(choix->isVisible());
    choix->Dir1->setPath(folder.path());
    EXPECT_EQ(choix->File1->count(), 1); // B.JPG, whatever the case; no other kind
    choix->File1->cliquer(u("B.JPG"));
    EXPECT_EQ(QDir::fromNativeSeparators(choix->Label4->text()), b);
    EXPECT_TRUE(montrée(*choix->apercu));
    EXPECT_EQ(module1().chemin_image_choisie, choix->Label4->text());
    choix->Dir1->setPath(folder.file(u("sous")));
    EXPECT_EQ(choix->Label4->text(), QString());
    EXPECT_FALSE(montrée(*choix->apercu));
    EXPECT_EQ(QDir::fromNativeSeparators(module1().chemin_image_choisie), b);

    // A double click sets the path alone; the accept gives it.
    choix->Dir1->setPath(folder.path());
    choix->File1->cliquer(u("B.JPG"));
    module1().chemin_image_choisie = u("avant");
    emit choix->File1->DblClick();
    EXPECT_EQ(module1().chemin_image_choisie, u("avant"));
    cliquer(*choix, u("cmdMettreàjour"));
    processDeletions();
    EXPECT_EQ(QDir::fromNativeSeparators(f.chemin_photo->text()), b);
    EXPECT_TRUE(montrée(*f.photo));

    // Accepted with nothing chosen, the pupil's photo goes.
    cliquer(f, u("Command14"));
    cliquer(*module1().feuilles().siChargée<feuille_choix_photo>(), u("cmdMettreàjour"));
    EXPECT_EQ(f.chemin_photo->text(), QString());
    EXPECT_FALSE(montrée(*f.photo));
}

} // namespace
