#include "platform/errors/VbError.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString generic = QString::fromUtf8("Erreur définie par l'application ou par l'objet");

} // namespace

TEST(VbError, CarriesNumberAndCatalogueTextWhichWhatGivesToo) {
    const VbError e(3021);
    EXPECT_EQ(e.number(), 3021);
    EXPECT_EQ(e.description(), QString::fromUtf8("Aucun enregistrement en cours."));
    EXPECT_STREQ(VbError(76).what(), "Chemin introuvable");
}

TEST(VbError, UnknownNumberGetsTheGenericText) {
    EXPECT_FALSE(error_known(4242));
    EXPECT_EQ(VbError(4242).description(), generic);
    EXPECT_EQ(VbError(4242).number(), 4242);
}

TEST(VbError, PlacesAreFilledInOrderAndAnUnfilledQuotedOneGoesWithItsQuotes) {
    const VbError e = VbError::avec(3024, {u"/bases/école.mdb"_s});
    EXPECT_EQ(e.number(), 3024);
    EXPECT_EQ(e.description(), QString::fromUtf8("Fichier '/bases/école.mdb' introuvable."));
    EXPECT_EQ(error_text(3061, {u"2"_s}), u"Trop peu de paramètres. 2 attendu."_s);
    // A quoted place left unfilled goes with its quotes.
    EXPECT_EQ(error_text(3024), u"Fichier introuvable."_s);
    EXPECT_EQ(error_text(3343), QString::fromUtf8("Format de base de données non reconnu."));
}

TEST(VbError, AnyFailureBecomesANumberedError) {
    EXPECT_EQ(vb_error_from(VbError(3022)).number(), 3022);
    EXPECT_EQ(vb_error_from(VbError(9999, u"texte à moi"_s)).description(), QString::fromUtf8("texte à moi"));
    EXPECT_EQ(vb_error_from(std::bad_alloc()).number(), 7);
    const VbError other = vb_error_from(std::runtime_error("english words"));
    EXPECT_EQ(other.number(), 51);
    EXPECT_EQ(other.description(), u"Erreur interne"_s);
}
