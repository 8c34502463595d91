// The pupil's age as the screen shows it, computed from the birth date and the day it is.
#include "people/age.h"
#include "support/Donnees.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Typed in the box as JJ/MM/AAAA, the date gives the same display.
TEST(AgeAffiche, YearsMonthsAndDaysBySubtractionOfTheCalendarFields) {
    for (const QStringList& c : table_de_données(u"ages.tsv"_s)) {
        SCOPED_TRACE((c[0] + u" au "_s + c[1]).toStdString());
        const QDate naissance = QDate::fromString(c[0], u"dd/MM/yyyy"_s);
        const QDate aujourdhui = QDate::fromString(c[1], u"dd/MM/yyyy"_s);
        ASSERT_TRUE(naissance.isValid() && aujourdhui.isValid());
        EXPECT_EQ(âge_affiché(naissance, aujourdhui), c[2]);
        EXPECT_EQ(âge_du_texte(c[0], aujourdhui), c[2]);
    }
}

TEST(AgeDuTexte, AnEmptyOrUnreadableDateGivesNothingToShow) {
    for (const char* texte : {"", "abc", "32/01/2000", "15/13/2000", "15/03/2000 x"})
        EXPECT_EQ(âge_du_texte(QString::fromLatin1(texte), QDate(2010, 3, 15)), std::nullopt) << texte;
}

} // namespace
