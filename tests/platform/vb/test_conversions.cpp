// Record numbers are counted by converting typed text to numbers and back with leading zeros.
#include "platform/vb/Conversions.h"
#include "support/Donnees.h"
#include "support/Fixtures.h"

namespace {

TEST(FormatZeros, PadsNumbersAndLeavesEverythingElseAlone) {
    for (const QStringList& c : table_de_données(u("format_zeros.tsv")))
        EXPECT_EQ(format_zéros(c[0]), c[1]) << c[0].toStdString();
    EXPECT_EQ(format_zéros(u("7"), 3), u("007"));
    EXPECT_EQ(format_zéros(u("7"), 1), u("7"));
}

TEST(CDbl, ReadsNumbersAndRefusesTheRestWithTypeMismatch) {
    EXPECT_DOUBLE_EQ(CDbl(u("000041")), 41.0);
    EXPECT_DOUBLE_EQ(CDbl(u("999999")), 999999.0);
    EXPECT_DOUBLE_EQ(CDbl(u("2,5")), 2.5);
    for (const char* pas_un_nombre : {"", "   ", "abc", "12b", "--1", "1.2.3"})
        EXPECT_EQ(error_of([&] { CDbl(u(pas_un_nombre)); }), 13) << pas_un_nombre;
}

TEST(TexteDuNombre, WholeNumbersWithoutDecimals) {
    EXPECT_EQ(texte_du_nombre(42.0), u("42"));
    EXPECT_EQ(texte_du_nombre(1000000.0), u("1000000"));
    EXPECT_EQ(texte_du_nombre(4.5), u("4.5"));
    EXPECT_EQ(texte_du_nombre(-3.0), u("-3"));
}

} // namespace
