// The texts that the pupil screen's order list is compared with, and the query each one sets.
#include "people/feuille_eleve.h"
#include "people/ordres_eleves.h"

#include <gtest/gtest.h>

namespace {

QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}

const QString alphabétique = u("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC");

TEST(OrdresDeLaListe, EveryEntryButNationalityIsComparedWithItsOwnText) {
    const auto ordres = ordres_élèves();
    ASSERT_EQ(ordres.size(), feuille_élève::ordres.size());
    for (std::size_t i = 0; i < ordres.size(); ++i) {
        SCOPED_TRACE(feuille_élève::ordres[i]);
        const QString entrée = u(feuille_élève::ordres[i]);
        EXPECT_EQ(entrée == u(ordres[i].texte_comparé), i != 8);
        EXPECT_EQ(requête_de_l_ordre(entrée), i == 8 ? alphabétique : u(ordres[i].requête));
    }
}

TEST(OrdresDeLaListe, TheComparisonIsExactAndAnyOtherTextGivesTheAlphabeticalOrder) {
    for (const char* texte : {"", "par âge", "Par âge ", "Par age", "Par nationalité", "n'importe quoi"}) {
        SCOPED_TRACE(texte);
        EXPECT_EQ(requête_de_l_ordre(u(texte)), alphabétique);
    }
    EXPECT_EQ(requête_de_l_ordre(u("Par âge")), u("SELECT * FROM élèves ORDER BY date_naissance_élève ASC"));
    // The nationality query is held, and only this bare word would set it.
    EXPECT_EQ(requête_de_l_ordre(u("nationalité")), u("SELECT * FROM élèves ORDER BY nationalité_élève ASC"));
}

} // namespace
