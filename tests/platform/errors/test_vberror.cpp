#include "platform/errors/VbError.h"

#include <gtest/gtest.h>

TEST(VbError, CarriesNumberAndCatalogueText) {
    const VbError e(3021);
    EXPECT_EQ(e.number(), 3021);
    EXPECT_EQ(e.description(), QString::fromUtf8("Aucun enregistrement en cours."));
}
