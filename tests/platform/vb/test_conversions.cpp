// Record numbers are counted by converting typed text to numbers and back with leading zeros.
#include "platform/errors/VbError.h"
#include "platform/vb/Conversions.h"
#include "support/Fixtures.h"

#include <gtest/gtest.h>

namespace {

TEST(FormatZeros, PadsNumbersAndLeavesEverythingElseAlone) {
    const struct {
        const char* typed;
        const char* shown;
    } cases[] = {
        {"42", "000042"},       {"000042", "000042"},
        {"1", "000001"},        {"999999", "999999"},
        {"1000000", "1000000"}, {"1234567", "1234567"},
        {" 42 ", "000042"},     {"0", "000000"},
        {"-3", "-000003"},      {"4,5", "000005"},
        {"4.4", "000004"},      {"1E3", "001000"},
        {"abc", "abc"},         {"", ""},
        {"4 2", "4 2"},         {"12a", "12a"},
        {"00004x", "00004x"},   {"1,2,3", "1,2,3"},
        {"+7", "000007"},       {"1e", "1e"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(format_zéros(u(c.typed)), u(c.shown)) << c.typed;
}

TEST(FormatZeros, OtherWidths) {
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
