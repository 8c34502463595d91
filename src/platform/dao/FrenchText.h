#pragma once

#include <QStringView>
#include <string>
#include <string_view>

// Text as a French user compares it, with our own folding table so that the order never depends on the
// system's locale or on a library version: case is ignored, an accented letter counts as its base letter
// (é as e, œ as oe, ß as ss), and only then do accents, case and the exact code points break ties.
namespace dao {

// The primary key of a text: lower-case base letters, combining accents dropped, ligatures spelt out.
std::u32string primary_key(QStringView text);
std::u32string primary_key_utf8(std::string_view utf8);

// Equal when the texts differ only by case and accents.
int compare_primary(std::string_view a, std::string_view b);
// A total order: primary key, then accents, then case (lower first), then code points.
int compare_french(std::string_view a, std::string_view b);
int compare_french(QStringView a, QStringView b);

// Jet's LIKE: * any run, ? one character, # one digit, [abc], [a-z], [!...]; everything else, % and _
// included, stands for itself. Case and accents are ignored, as in equality.
bool jet_like(std::string_view utf8Text, std::string_view utf8Pattern);
bool jet_like(QStringView text, QStringView pattern);

} // namespace dao
