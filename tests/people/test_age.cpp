// The pupil's age as the screen shows it, computed from the birth date and the day it is.
#include "people/age.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QDate jour(const char* jj_mm_aaaa) {
    return QDate::fromString(QString::fromLatin1(jj_mm_aaaa), u"dd/MM/yyyy"_s);
}

struct CasÂge {
    const char* naissance;
    const char* aujourdhui;
    const char* affiché;
};

// Months count 31 days whatever their length; a birthday whose month was the month before and whose
// day is not yet reached reads one year less and 12 months.
const CasÂge cas[] = {
    {"15/03/2000", "15/03/2010", "10 a - 0 m - 0 j"},  {"15/03/2000", "20/05/2010", "10 a - 2 m - 5 j"},
    {"15/03/2000", "10/05/2010", "10 a - 1 m - 26 j"}, {"15/03/2000", "10/04/2010", "9 a - 12 m - 26 j"},
    {"15/03/2000", "10/03/2010", "9 a - 11 m - 26 j"}, {"15/03/2000", "20/02/2010", "9 a - 11 m - 5 j"},
    {"15/03/2000", "10/02/2010", "9 a - 10 m - 26 j"}, {"31/01/2000", "01/03/2000", "0 a - 1 m - 1 j"},
    {"20/06/2010", "25/06/2010", "0 a - 0 m - 5 j"},   {"20/06/2010", "20/06/2010", "0 a - 0 m - 0 j"},
    {"20/06/2010", "10/07/2010", "## erreur ##"},      {"21/06/2010", "20/06/2010", "## erreur ##"},
    {"29/02/2008", "28/02/2010", "1 a - 11 m - 30 j"},
};

void PrintTo(const CasÂge& c, std::ostream* os) {
    *os << c.naissance << " au " << c.aujourdhui;
}

class AgeAffiche : public ::testing::TestWithParam<CasÂge> {};

TEST_P(AgeAffiche, YearsMonthsAndDaysBySubtractionOfTheCalendarFields) {
    const CasÂge& c = GetParam();
    const QDate naissance = jour(c.naissance);
    const QDate aujourdhui = jour(c.aujourdhui);
    ASSERT_TRUE(naissance.isValid() && aujourdhui.isValid());
    EXPECT_EQ(âge_affiché(naissance, aujourdhui), QString::fromUtf8(c.affiché));
    // Typed in the box as JJ/MM/AAAA, the date gives the same display.
    EXPECT_EQ(âge_du_texte(QString::fromLatin1(c.naissance), aujourdhui), QString::fromUtf8(c.affiché));
}

INSTANTIATE_TEST_SUITE_P(TableDesAges, AgeAffiche, ::testing::ValuesIn(cas));

TEST(AgeDuTexte, AnEmptyOrUnreadableDateGivesNothingToShow) {
    const QDate aujourdhui(2010, 3, 15);
    for (const char* texte : {"", "abc", "32/01/2000", "15/13/2000", "15/03/2000 x"}) {
        SCOPED_TRACE(texte);
        EXPECT_EQ(âge_du_texte(QString::fromLatin1(texte), aujourdhui), std::nullopt);
    }
}

} // namespace
