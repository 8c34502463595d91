#pragma once

#include <QStringView>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text as a French user compares it, with our own folding table so that the order never depends on the
// system's locale or on a library version: case is ignored, an accented letter counts as its base letter
// (é as e, œ as oe, ß as ss), and only then do accents, case and the exact code points break ties.
namespace dao {

// The primary key of a text: lower-case base letters, combining accents dropped, ligatures spelt out.
std::u32string primary_key(QStringView text);
std::u32string primary_key_utf8(std::string_view utf8);

// Equal when the texts differ only by case and accents.
int compare_primary(std::string_view a, std::string_view b);
// French order: primary key, then accents (an unaccented letter first), then case (lower first). Only
// texts that differ in nothing a reader sees (two spellings of one Greek sigma) compare equal.
int compare_french(std::string_view a, std::string_view b);
int compare_french(QStringView a, QStringView b);

// A sort key whose byte order (memcmp) is the French order of the given columns taken together: the
// primary keys of all columns first, so that case and accents of a surname never outweigh the first
// name, then accents and case column by column. A missing value (nullopt) sorts first.
// The engine sorts and indexes on it with plain byte comparisons, computing each key once a row.
// The bases' indexes keep these keys: a change to this order must come with a REINDEX of old files.
std::string sort_key(const std::vector<std::optional<std::string_view>>& columns);

// Jet's LIKE: * any run, ? one character, # one digit, [abc], [a-z], [!...]; everything else, % and _
// included, stands for itself. Case and accents are ignored, as in equality.
bool jet_like(std::string_view utf8Text, std::string_view utf8Pattern);
bool jet_like(QStringView text, QStringView pattern);

// A LIKE pattern read once and matched against many texts, as the engine does row after row.
class LikePattern {
public:
    explicit LikePattern(std::string_view utf8Pattern);
    ~LikePattern();
    LikePattern(const LikePattern&) = delete;
    LikePattern& operator=(const LikePattern&) = delete;
    bool matches(std::string_view utf8Text);

    struct Item; // one element of the pattern, already folded

private:
    std::vector<Item> items_;
    std::u32string folded_; // the text being matched, kept to spare an allocation a row
};

} // namespace dao
