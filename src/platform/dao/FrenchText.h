#pragma once

#include <QStringView>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct UCollator;
struct UCollationElements;
struct UBreakIterator;

// Text as a French user compares it, over all of Unicode, by ICU's French collator: case and accents
// are ignored for equality and LIKE (primary strength), and break ties in the order (accents, then
// case, lower case first). The typographic apostrophe (’) counts as the plain one.
namespace dao {

struct IcuCloser {
    void operator()(UCollator* collator) const;
    void operator()(UCollationElements* elements) const;
    void operator()(UBreakIterator* iterator) const;
};

// The collators of one connection. Its functions are not to be shared between threads.
class FrenchCollation {
public:
    FrenchCollation();
    ~FrenchCollation();
    FrenchCollation(const FrenchCollation&) = delete;
    FrenchCollation& operator=(const FrenchCollation&) = delete;

    // Equal when the texts differ only by case, accents or the form of their apostrophes.
    int comparePrimary(std::string_view a, std::string_view b) const;
    // French order: letters, then accents, then case (lower case first). Only texts that differ in
    // nothing a reader sees (é written as one character or as e and its accent) compare equal.
    int compare(std::string_view a, std::string_view b) const;
    int compare(QStringView a, QStringView b) const;

    // A sort key whose byte order (memcmp) is the French order of the given columns taken together: the
    // letters of all columns first, so that case and accents of a surname never outweigh the first name,
    // then the accents of all columns, then their case. A missing value (nullopt) sorts as an empty one.
    // The engine sorts and indexes on it with plain byte comparisons, computing each key once a row.
    std::string sortKey(std::span<const std::optional<std::string_view>> columns) const;

    // Jet's LIKE, for one text (see LikePattern).
    bool like(QStringView text, QStringView pattern) const;

    // The version of the order that indexes built on these keys and collations hold. It changes with
    // ICU's collation data and code (a system upgrade may bring another) and with our tailoring.
    static int version();

    const UCollator* primary() const { return primary_.get(); }

private:
    std::unique_ptr<UCollator, IcuCloser> order_;   // tertiary strength: the order
    std::unique_ptr<UCollator, IcuCloser> primary_; // primary strength: equality and LIKE
};

// Jet's LIKE read once and matched against many texts, as the engine does row after row:
// * any run, ? one character as the reader sees it (a letter with its accents), # one digit, [abc],
// [a-z], [!...]; everything else, % and _ included, stands for itself. Case and accents are ignored, as
// in equality: a literal matches a text of the same letters at primary strength (œ as oe, ß as ss).
class LikePattern {
public:
    LikePattern(const FrenchCollation& collation, std::string_view utf8Pattern);
    ~LikePattern();
    LikePattern(const LikePattern&) = delete;
    LikePattern& operator=(const LikePattern&) = delete;
    bool matches(std::string_view utf8Text);

    struct Item;

private:
    struct Weights {
        uint32_t first = 0;
        uint32_t offset = 0; // of all of them in pool_
        uint16_t size = 0;
        bool known = false;
    };

    void splitText(std::string_view utf8Text);
    bool splitEachCodePoint(std::string_view utf8Text);
    bool mayStartWithLiteral(std::string_view utf8Text);
    const Weights& weightsOf(char32_t codePoint);
    void appendWeightsOf(char32_t codePoint);
    std::vector<uint32_t> weightsOf(std::u16string_view text);
    std::vector<Item> compile(std::u16string_view pattern);
    size_t consumed(const Item& item, size_t grapheme) const;
    bool match() const;

    std::unique_ptr<UCollationElements, IcuCloser> elements_;
    std::unique_ptr<UBreakIterator, IcuCloser> graphemes_;
    std::vector<Item> items_;
    std::vector<uint32_t> digits_; // the primary weights of 0 to 9
    // The text being matched, one grapheme after another: their primary weights, and where each begins.
    std::vector<uint32_t> weights_;
    std::vector<uint32_t> starts_;
    // Weights of code points met so far: the same letters come back row after row.
    std::vector<uint32_t> pool_;
    std::vector<Weights> latin_; // below U+0250
    std::unordered_map<char32_t, Weights> others_;
};

} // namespace dao
