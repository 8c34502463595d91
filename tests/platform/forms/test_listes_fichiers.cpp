#include "platform/forms/ListesFichiers.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList textes(const QListWidget& liste) {
    QStringList t;
    for (int i = 0; i < liste.count(); ++i)
        t << liste.item(i)->text().trimmed();
    return t;
}

TEST(ListesFichiers, ReprendreLeLecteurEnCoursNEstPasUnChangement) {
    DriveListBox lecteurs;
    lecteurs.addItem(u"Z:"_s);
    QSignalSpy changements(&lecteurs, &DriveListBox::Change);
    const int en_cours = lecteurs.currentIndex();
    emit lecteurs.activated(en_cours);
    EXPECT_EQ(changements.count(), 0);
    const int autre = en_cours == 0 ? 1 : 0;
    lecteurs.setCurrentIndex(autre);
    emit lecteurs.activated(autre);
    EXPECT_EQ(changements.count(), 1);
    emit lecteurs.activated(autre);
    EXPECT_EQ(changements.count(), 1);
    const int lecteurs_connus = lecteurs.count();
    lecteurs.setDrive(QDir::rootPath()); // a drive already listed is not listed twice
    EXPECT_EQ(lecteurs.count(), lecteurs_connus);
}

// The file list follows its pattern whatever the case and shows no folder; a click, or a move of the
// selection by the keyboard, is a Click.
TEST(ListesFichiers, LaListeDesFichiersSuitSonMotifSansDistinguerLaCasseNiMontrerLesDossiers) {
    WorkFolder dossier;
    for (const char* nom : {"b.MDB", "a.mdb", "basevide.mdz", ".cachée.mdb"})
        dossier.write(nom, "x");
    QDir(dossier.path()).mkdir("dossier.mdb");
    FileListBox fichiers;
    fichiers.setPattern("*.mdb");
    fichiers.setPath(dossier.path());
    EXPECT_EQ(textes(fichiers), (QStringList{"a.mdb", "b.MDB"}));
    EXPECT_EQ(fichiers.FileName(), "");
    fichiers.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&fichiers));
    QSignalSpy clics(&fichiers, &FileListBox::Click);
    EXPECT_TRUE(fichiers.cliquer("a.mdb"));
    EXPECT_FALSE(fichiers.cliquer("absente.mdb"));
    QTest::keyClick(&fichiers, Qt::Key_Down);
    EXPECT_EQ(fichiers.FileName(), "b.MDB");
    EXPECT_EQ(clics.count(), 2);
    QTest::keyClick(&fichiers, Qt::Key_Down); // already the last: nothing moves
    QTest::keyClick(&fichiers, Qt::Key_Shift);
    EXPECT_EQ(clics.count(), 2);
    dossier.write("c.mdb", "x");
    fichiers.Refresh();
    EXPECT_EQ(textes(fichiers), (QStringList{"a.mdb", "b.MDB", "c.mdb"}));
}

TEST(ListesFichiers, LaListeDesDossiersMontreLaBrancheEtLesSousDossiersEtSeDéplaceAuDoubleClic) {
    WorkFolder dossier;
    QDir(dossier.path()).mkdir("Écoles");
    QDir(dossier.path()).mkdir("archives");
    DirListBox dossiers;
    dossiers.setPath(dossier.path());
    dossiers.resize(300, 400);
    dossiers.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dossiers));
    const QStringList entrées = textes(dossiers);
    ASSERT_GE(entrées.size(), 3);
    EXPECT_EQ(entrées.first(), QDir::toNativeSeparators(QDir::rootPath()));
    EXPECT_EQ(entrées.mid(entrées.size() - 2), (QStringList{"archives", "Écoles"}));
    QSignalSpy changements(&dossiers, &DirListBox::Change);
    const QRect zone = dossiers.visualItemRect(dossiers.item(dossiers.count() - 1));
    QTest::mouseClick(dossiers.viewport(), Qt::LeftButton, {}, zone.center());
    QTest::mouseDClick(dossiers.viewport(), Qt::LeftButton, {}, zone.center());
    EXPECT_EQ(dossiers.Path(), QDir::toNativeSeparators(dossier.file("Écoles")));
    dossiers.setPath(dossier.file("Écoles")); // the same path again changes nothing
    EXPECT_EQ(changements.count(), 1);
}

} // namespace
