#include "platform/dao/FrenchText.h"

#include "platform/errors/VbError.h"

#include <QByteArray>
#include <algorithm>
#include <array>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/ucoleitr.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace dao {

void IcuCloser::operator()(UCollator* collator) const {
    ucol_close(collator);
}
void IcuCloser::operator()(UCollationElements* elements) const {
    ucol_closeElements(elements);
}
void IcuCloser::operator()(UBreakIterator* iterator) const {
    ubrk_close(iterator);
}

namespace {

// The typographic apostrophe, and the modifier letter some keyboards type for it, differ from the plain
// one only as case does: "d’Artagnan" is found by "d'artagnan" and sorts beside it.
// In the rules, '' is the apostrophe itself.
constexpr char16_t apostrophes[] = u"&''<<<\u2019<<<\u02BC";

// Bumped whenever our keys change otherwise (their layout in sortKey, the collator's strength or options):
// bases then rebuild their indexes.
constexpr char16_t key_layout[] = u"1";

void check(UErrorCode status) {
    if (U_FAILURE(status))
        throw VbError(status == U_MEMORY_ALLOCATION_ERROR ? 7 : 3219);
}

// The French collator with our tailoring, built once: ICU takes milliseconds to build a tailored
// collator and microseconds to clone one, so each connection clones this one. Never changed once built.
class Prototype {
public:
    Prototype() {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<UCollator, IcuCloser> french(ucol_open("fr", &status));
        check(status);
        int32_t length = 0;
        const UChar* frenchRules = ucol_getRules(french.get(), &length);
        rules_.assign(frenchRules, length);
        rules_ += apostrophes;
        collator_.reset(ucol_openRules(rules_.data(), static_cast<int32_t>(rules_.size()), UCOL_ON,
                                       UCOL_TERTIARY, nullptr, &status));
        check(status);
        UVersionInfo icuVersion;
        ucol_getVersion(collator_.get(), icuVersion);
        version_ = stamp(icuVersion);
    }

    const UCollator* collator() const { return collator_.get(); }
    int version() const { return version_; }

private:
    // FNV-1a over ICU's version of the collator (its data and code), our rules and our key layout.
    int stamp(const UVersionInfo& icuVersion) const {
        uint32_t hash = 2166136261u;
        const auto mix = [&hash](uint32_t value) { hash = (hash ^ value) * 16777619u; };
        for (uint8_t part : icuVersion)
            mix(part);
        for (char16_t c : rules_)
            mix(c);
        for (char16_t c : std::u16string_view(key_layout))
            mix(c);
        return static_cast<int>(hash & 0x7FFFFFFF) | 1; // never 0, the version of a base that has none
    }

    std::u16string rules_;
    std::unique_ptr<UCollator, IcuCloser> collator_;
    int version_ = 0;
};

const Prototype& prototype() {
    static const Prototype built;
    return built;
}

// UTF-8 as UTF-16, on the stack for the short texts that names and most fields are. A broken byte becomes
// U+FFFD, as ICU reads it in the comparisons.
class Utf16 {
public:
    Utf16() = default;
    explicit Utf16(std::string_view utf8) { append(utf8); }
    Utf16(const Utf16&) = delete;
    Utf16& operator=(const Utf16&) = delete;

    void append(std::string_view utf8) {
        reserve(size_ + utf8.size()); // never more UTF-16 units than UTF-8 bytes
        UErrorCode status = U_ZERO_ERROR;
        int32_t length = 0;
        u_strFromUTF8WithSub(data_ + size_, static_cast<int32_t>(capacity_ - size_), &length, utf8.data(),
                             static_cast<int32_t>(utf8.size()), 0xFFFD, nullptr, &status);
        if (U_SUCCESS(status))
            size_ += length;
    }
    void append(char16_t unit) {
        reserve(size_ + 1);
        data_[size_++] = unit;
    }
    std::u16string_view view() const { return {data_, size_}; }

private:
    void reserve(size_t capacity) {
        if (capacity <= capacity_)
            return;
        std::u16string larger(std::max(capacity, 2 * capacity_), u'\0');
        std::copy(data_, data_ + size_, larger.begin());
        heap_ = std::move(larger);
        data_ = heap_.data();
        capacity_ = heap_.size();
    }

    std::array<UChar, 128> stack_;
    std::u16string heap_;
    UChar* data_ = stack_.data();
    size_t size_ = 0;
    size_t capacity_ = stack_.size();
};

// ICU's sort key of a text, without its final 0.
std::string icu_key(const UCollator* collator, std::u16string_view text) {
    const auto length = static_cast<int32_t>(text.size());
    std::array<uint8_t, 256> buffer;
    const int32_t size = ucol_getSortKey(collator, text.data(), length, buffer.data(), buffer.size());
    if (size <= 0)
        return {};
    if (size <= static_cast<int32_t>(buffer.size()))
        return std::string(reinterpret_cast<const char*>(buffer.data()), size - 1);
    std::string key(size, '\0');
    ucol_getSortKey(collator, text.data(), length, reinterpret_cast<uint8_t*>(key.data()), size);
    key.pop_back();
    return key;
}

// The primary weights of a text in collation order, 32 bits each; accents and case, which weigh nothing
// at this strength, are left out.
void append_primaries(UCollationElements* elements, std::u16string_view text, std::vector<uint32_t>& out) {
    UErrorCode status = U_ZERO_ERROR;
    ucol_setText(elements, text.data(), static_cast<int32_t>(text.size()), &status);
    for (int32_t element; (element = ucol_next(elements, &status)) != UCOL_NULLORDER && U_SUCCESS(status);) {
        const auto bits = static_cast<uint32_t>(element);
        // A 32-bit primary comes as two elements: its upper half, then a continuation with its lower half.
        const bool continuation = (bits & 0xC0) == 0xC0;
        if (continuation) {
            if (!out.empty())
                out.back() |= bits >> 16;
        } else if (const uint32_t primary = bits & 0xFFFF0000u) {
            out.push_back(primary);
        }
    }
}

// Whether a code point is a character as the user sees it whatever its neighbours, as long as they are
// of the same kind: no accent to combine with it, no jamo, no emoji sequence (Unicode's grapheme rules).
bool stands_alone(UChar32 c) {
    const int kind = u_getIntPropertyValue(c, UCHAR_GRAPHEME_CLUSTER_BREAK);
    return kind == U_GCB_OTHER || kind == U_GCB_CONTROL;
}

} // namespace

// --- FrenchCollation

FrenchCollation::FrenchCollation() {
    UErrorCode status = U_ZERO_ERROR;
    order_.reset(ucol_clone(prototype().collator(), &status));
    check(status);
    primary_.reset(ucol_clone(prototype().collator(), &status));
    check(status);
    ucol_setStrength(primary_.get(), UCOL_PRIMARY);
}

FrenchCollation::~FrenchCollation() = default;

int FrenchCollation::version() {
    return prototype().version();
}

int FrenchCollation::comparePrimary(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(primary_.get(), a.data(), static_cast<int32_t>(a.size()), b.data(),
                            static_cast<int32_t>(b.size()), &status);
}

int FrenchCollation::compare(std::string_view a, std::string_view b) const {
    UErrorCode status = U_ZERO_ERROR;
    return ucol_strcollUTF8(order_.get(), a.data(), static_cast<int32_t>(a.size()), b.data(),
                            static_cast<int32_t>(b.size()), &status);
}

int FrenchCollation::compare(QStringView a, QStringView b) const {
    return ucol_strcoll(order_.get(), reinterpret_cast<const UChar*>(a.utf16()),
                        static_cast<int32_t>(a.size()), reinterpret_cast<const UChar*>(b.utf16()),
                        static_cast<int32_t>(b.size()));
}

// The columns joined by U+FFFE, which ICU's collators sort below every character for this very use: the
// key of the whole compares as the columns' keys merged level by level would (ucol_mergeSortkeys). A
// missing value sorts as an empty one: the engine's order then decides between them.
std::string FrenchCollation::sortKey(std::span<const std::optional<std::string_view>> columns) const {
    Utf16 joined;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (i > 0)
            joined.append(u'\uFFFE');
        if (columns[i])
            joined.append(*columns[i]);
    }
    return icu_key(order_.get(), joined.view());
}

bool FrenchCollation::like(QStringView text, QStringView pattern) const {
    const QByteArray utf8Pattern = pattern.toUtf8(), utf8Text = text.toUtf8();
    LikePattern compiled(*this, std::string_view(utf8Pattern.constData(), utf8Pattern.size()));
    return compiled.matches(std::string_view(utf8Text.constData(), utf8Text.size()));
}

// --- LikePattern

struct LikePattern::Item {
    enum Kind { Literal, AnyRun, AnyOne, Digit, Class } kind = Literal;
    std::vector<uint32_t> weights; // of a literal: the primaries of one or more characters
    bool negated = false;
    std::vector<std::pair<std::vector<uint32_t>, std::vector<uint32_t>>> ranges; // of a class
};

LikePattern::LikePattern(const FrenchCollation& collation, std::string_view utf8Pattern) : latin_(0x250) {
    UErrorCode status = U_ZERO_ERROR;
    static constexpr UChar none[] = u"";
    elements_.reset(ucol_openElements(collation.primary(), none, 0, &status));
    check(status);
    graphemes_.reset(ubrk_open(UBRK_CHARACTER, "fr", nullptr, 0, &status));
    check(status);
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        append_primaries(elements_.get(), std::u16string_view(&digit, 1), digits_);
    const Utf16 pattern(utf8Pattern);
    items_ = compile(pattern.view());
}

LikePattern::~LikePattern() = default;

std::vector<uint32_t> LikePattern::weightsOf(std::u16string_view text) {
    std::vector<uint32_t> weights;
    append_primaries(elements_.get(), text, weights);
    return weights;
}

std::vector<LikePattern::Item> LikePattern::compile(std::u16string_view pattern) {
    // The pattern's characters as the user sees them: an accent typed apart stays with its letter.
    std::vector<std::u16string_view> chars;
    UErrorCode status = U_ZERO_ERROR;
    ubrk_setText(graphemes_.get(), pattern.data(), static_cast<int32_t>(pattern.size()), &status);
    for (int32_t start = ubrk_first(graphemes_.get()), end; (end = ubrk_next(graphemes_.get())) != UBRK_DONE;
         start = end)
        chars.push_back(pattern.substr(start, end - start));
    const auto is = [&chars](size_t i, char16_t c) { return chars[i].size() == 1 && chars[i][0] == c; };

    const auto closing = [&](size_t i) { // the ] that closes a class opened at i, or chars.size()
        while (++i < chars.size() && !is(i, u']')) {
        }
        return i;
    };

    std::vector<Item> items;
    for (size_t i = 0; i < chars.size(); ++i) {
        Item item;
        if (is(i, u'*')) {
            if (!items.empty() && items.back().kind == Item::AnyRun)
                continue;
            item.kind = Item::AnyRun;
        } else if (is(i, u'?')) {
            item.kind = Item::AnyOne;
        } else if (is(i, u'#')) {
            item.kind = Item::Digit;
        } else if (const size_t close = is(i, u'[') ? closing(i) : chars.size(); close < chars.size()) {
            item.kind = Item::Class;
            size_t j = i + 1;
            if (j < close && is(j, u'!')) {
                item.negated = true;
                ++j;
            }
            for (; j < close; ++j) {
                if (j + 2 < close && is(j + 1, u'-')) {
                    item.ranges.emplace_back(weightsOf(chars[j]), weightsOf(chars[j + 2]));
                    j += 2;
                } else {
                    item.ranges.emplace_back(weightsOf(chars[j]), weightsOf(chars[j]));
                }
            }
            i = close;
        } else {
            // Letters in a row make one literal, so that "oe" matches "œ" and "œ" matches "oe".
            if (items.empty() || items.back().kind != Item::Literal)
                items.emplace_back();
            append_primaries(elements_.get(), chars[i], items.back().weights);
            if (items.back().weights.empty()) // only characters that weigh nothing, as a text's are
                items.pop_back();
            continue;
        }
        items.push_back(std::move(item));
    }
    return items;
}

const LikePattern::Weights& LikePattern::weightsOf(char32_t codePoint) {
    Weights& known = codePoint < latin_.size() ? latin_[codePoint] : others_[codePoint];
    if (!known.known) {
        std::array<UChar, 2> units;
        int32_t length = 0;
        U16_APPEND_UNSAFE(units.data(), length, codePoint);
        known.offset = static_cast<uint32_t>(pool_.size());
        append_primaries(elements_.get(), std::u16string_view(units.data(), length), pool_);
        known.size = static_cast<uint16_t>(pool_.size() - known.offset);
        known.first = known.size ? pool_[known.offset] : 0;
        known.known = true;
    }
    return known;
}

void LikePattern::appendWeightsOf(char32_t codePoint) {
    const Weights& known = weightsOf(codePoint);
    weights_.insert(weights_.end(), pool_.begin() + known.offset, pool_.begin() + known.offset + known.size);
}

// The common case: every code point of the text stands alone, so each is one character as the user sees
// it, CR LF aside. False otherwise.
bool LikePattern::splitEachCodePoint(std::string_view utf8Text) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(utf8Text.data());
    const auto length = static_cast<int32_t>(utf8Text.size());
    for (int32_t i = 0; i < length;) {
        UChar32 c;
        U8_NEXT(bytes, i, length, c);
        if (c < 0)
            c = 0xFFFD;
        if (c >= 0x80 && !stands_alone(c))
            return false;
        const auto start = static_cast<uint32_t>(weights_.size());
        const bool seen = c < static_cast<UChar32>(latin_.size()) && latin_[c].known;
        if (const Weights& known = seen ? latin_[c] : weightsOf(static_cast<char32_t>(c));
            known.size == 1 && c != '\r') {
            starts_.push_back(start); // most letters
            weights_.push_back(known.first);
            continue;
        }
        appendWeightsOf(static_cast<char32_t>(c));
        if (c == '\r' && i < length && bytes[i] == '\n') {
            appendWeightsOf(U'\n');
            ++i;
        }
        if (weights_.size() > start) // a character that weighs nothing is not one the user sees
            starts_.push_back(start);
    }
    return true;
}

void LikePattern::splitText(std::string_view utf8Text) {
    weights_.clear();
    starts_.clear();
    if (splitEachCodePoint(utf8Text))
        return;
    weights_.clear();
    starts_.clear();
    const Utf16 text(utf8Text);
    const std::u16string_view units = text.view();
    UErrorCode status = U_ZERO_ERROR;
    ubrk_setText(graphemes_.get(), units.data(), static_cast<int32_t>(units.size()), &status);
    for (int32_t start = ubrk_first(graphemes_.get()), end; (end = ubrk_next(graphemes_.get())) != UBRK_DONE;
         start = end) {
        const auto at = static_cast<uint32_t>(weights_.size());
        const std::u16string_view grapheme = units.substr(start, end - start);
        int32_t read = 0;
        UChar32 c;
        U16_NEXT(grapheme.data(), read, static_cast<int32_t>(grapheme.size()), c);
        if (read == static_cast<int32_t>(grapheme.size())) {
            appendWeightsOf(static_cast<char32_t>(c));
        } else {
            append_primaries(elements_.get(), grapheme, weights_);
        }
        if (weights_.size() > at)
            starts_.push_back(at);
    }
}

// How many characters of the text, from the given one, the item takes; 0 when it does not match there.
size_t LikePattern::consumed(const Item& item, size_t at) const {
    const size_t count = starts_.size();
    const auto characterAt = [&](size_t i) {
        const size_t end = i + 1 < count ? starts_[i + 1] : weights_.size();
        return std::span<const uint32_t>(weights_.data() + starts_[i], end - starts_[i]);
    };
    switch (item.kind) {
    case Item::AnyOne:
    case Item::AnyRun:
        return 1;
    case Item::Digit: {
        const auto c = characterAt(at);
        return c.size() == 1 && std::find(digits_.begin(), digits_.end(), c.front()) != digits_.end() ? 1 : 0;
    }
    case Item::Class: {
        const auto c = characterAt(at);
        const auto less = [](auto x, auto y) {
            return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end());
        };
        const bool inside = std::any_of(item.ranges.begin(), item.ranges.end(), [&](const auto& range) {
            return !less(c, std::span<const uint32_t>(range.first)) &&
                   !less(std::span<const uint32_t>(range.second), c);
        });
        return inside != item.negated ? 1 : 0;
    }
    case Item::Literal: {
        const size_t begin = starts_[at], end = begin + item.weights.size();
        if (end > weights_.size())
            return 0;
        for (size_t i = 0; i < item.weights.size(); ++i) // short: a loop beats memcmp
            if (weights_[begin + i] != item.weights[i])
                return 0;
        size_t next = at + 1; // the literal must end where a character ends
        while (next < count && starts_[next] < end)
            ++next;
        const size_t reached = next < count ? starts_[next] : weights_.size();
        return reached == end ? next - at : 0;
    }
    }
    return 0;
}

// Classic wildcard matching with one back-tracking point for the last '*'. It holds with literals of
// several characters too: a literal starting further on also ends further on.
bool LikePattern::match() const {
    const size_t count = starts_.size();
    size_t t = 0, p = 0;
    size_t starP = std::string::npos, starT = 0;
    while (t < count) {
        if (p < items_.size() && items_[p].kind == Item::AnyRun) {
            starP = p++;
            starT = t;
        } else if (const size_t taken = p < items_.size() ? consumed(items_[p], t) : 0) {
            ++p;
            t += taken;
        } else if (starP != std::string::npos) {
            p = starP + 1;
            t = ++starT;
        } else {
            return false;
        }
    }
    while (p < items_.size() && items_[p].kind == Item::AnyRun)
        ++p;
    return p == items_.size();
}

// A pattern that starts with letters, as a search by the start of a name does, refuses most texts on
// their first character: they are read no further. False only when the text cannot match.
bool LikePattern::mayStartWithLiteral(std::string_view utf8Text) {
    if (items_.empty() || items_.front().kind != Item::Literal)
        return true;
    const std::vector<uint32_t>& literal = items_.front().weights;
    const auto* bytes = reinterpret_cast<const uint8_t*>(utf8Text.data());
    const auto length = static_cast<int32_t>(utf8Text.size());
    size_t matched = 0;
    for (int32_t i = 0; i < length && matched < literal.size();) {
        UChar32 c;
        U8_NEXT(bytes, i, length, c);
        if (c < 0)
            c = 0xFFFD;
        if (c >= 0x80 && !stands_alone(c))
            return true; // the full reading decides
        const Weights& known = weightsOf(static_cast<char32_t>(c));
        for (uint16_t k = 0; k < known.size && matched < literal.size(); ++k)
            if (pool_[known.offset + k] != literal[matched++])
                return false;
    }
    return matched == literal.size();
}

bool LikePattern::matches(std::string_view utf8Text) {
    if (!mayStartWithLiteral(utf8Text))
        return false;
    splitText(utf8Text);
    return match();
}

} // namespace dao
