#include "platform/dao/FrenchText.h"

#include <QChar>
#include <QList>
#include <QString>
#include <algorithm>
#include <array>
#include <vector>

namespace dao {
namespace {

// Base letters of U+00C0..U+017F, one entry a code point; a two-letter entry is a ligature.
// Non-letters of that block (× ÷) keep themselves, marked by an empty entry.
constexpr std::array<const char*, 192> latin_bases = {
    // U+00C0..U+00DF
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i", //
    "d", "n", "o", "o", "o", "o", "o", "", "o", "u", "u", "u", "u", "y", "th", "ss", //
    // U+00E0..U+00FF
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i", //
    "d", "n", "o", "o", "o", "o", "o", "", "o", "u", "u", "u", "u", "y", "th", "y",  //
    // U+0100..U+017F
    "a", "a", "a", "a", "a", "a", "c", "c", "c", "c", "c", "c", "c", "c", "d", "d",   //
    "d", "d", "e", "e", "e", "e", "e", "e", "e", "e", "e", "e", "g", "g", "g", "g",   //
    "g", "g", "g", "g", "h", "h", "h", "h", "i", "i", "i", "i", "i", "i", "i", "i",   //
    "i", "i", "ij", "ij", "j", "j", "k", "k", "k", "l", "l", "l", "l", "l", "l", "l", //
    "l", "l", "l", "n", "n", "n", "n", "n", "n", "n", "n", "n", "o", "o", "o", "o",   //
    "o", "o", "oe", "oe", "r", "r", "r", "r", "r", "r", "s", "s", "s", "s", "s", "s", //
    "s", "s", "t", "t", "t", "t", "t", "t", "u", "u", "u", "u", "u", "u", "u", "u",   //
    "u", "u", "u", "u", "w", "w", "y", "y", "y", "z", "z", "z", "z", "z", "z", "s",   //
};

bool is_combining_mark(char32_t c) {
    return c >= 0x0300 && c <= 0x036F;
}

const char* latin_base(char32_t c) {
    if (c < 0xC0 || c > 0x17F)
        return nullptr;
    const char* base = latin_bases[c - 0xC0];
    return *base ? base : nullptr;
}

void append_primary(char32_t c, std::u32string& out) {
    if (c < 0x80) {
        out.push_back(c >= 'A' && c <= 'Z' ? c + 32 : c);
        return;
    }
    if (is_combining_mark(c))
        return;
    if (const char* base = latin_base(c)) {
        for (; *base; ++base)
            out.push_back(static_cast<char32_t>(*base));
        return;
    }
    out.push_back(QChar::toCaseFolded(c));
}

// Accent weight: 0 for a bare letter, the lower-case code point for a letter with a mark.
char32_t accent_weight(char32_t c) {
    if (is_combining_mark(c))
        return c;
    if (latin_base(c)) {
        const char32_t lower = QChar::toLower(c);
        return lower;
    }
    return 0;
}

bool is_upper(char32_t c) {
    return c >= 0x80 ? QChar::isUpper(c) : (c >= 'A' && c <= 'Z');
}

// Decodes UTF-8 leniently: a broken byte stands for itself, so that nothing is ever lost.
std::u32string decode(std::string_view s) {
    std::u32string out;
    out.reserve(s.size());
    size_t i = 0;
    while (i < s.size()) {
        const auto b = static_cast<unsigned char>(s[i]);
        const size_t extra = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
        char32_t c = extra ? (b & (0x3F >> extra)) : b;
        bool ok = i + extra < s.size();
        for (size_t k = 1; ok && k <= extra; ++k) {
            const auto cb = static_cast<unsigned char>(s[i + k]);
            ok = (cb & 0xC0) == 0x80;
            c = (c << 6) | (cb & 0x3F);
        }
        if (!ok) {
            out.push_back(b);
            ++i;
            continue;
        }
        out.push_back(c);
        i += extra + 1;
    }
    return out;
}

std::u32string decode(QStringView s) {
    std::u32string out;
    out.reserve(s.size());
    for (char32_t c : s.toUcs4())
        out.push_back(c);
    return out;
}

std::u32string primary_of(const std::u32string& chars) {
    std::u32string out;
    out.reserve(chars.size());
    for (char32_t c : chars)
        append_primary(c, out);
    return out;
}

bool is_ascii(std::string_view s) {
    return std::all_of(s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char ascii_lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

// One element of a LIKE pattern, already folded.
} // namespace

struct LikePattern::Item {
    enum Kind { Literal, AnyRun, AnyOne, Digit, Class } kind = Literal;
    char32_t literal = 0;
    bool negated = false;
    std::vector<std::pair<char32_t, char32_t>> ranges;
};

namespace {

using PatternItem = LikePattern::Item;

char32_t fold_one(char32_t c) {
    std::u32string f;
    append_primary(c, f);
    return f.empty() ? c : f.front();
}

std::vector<PatternItem> compile_pattern(const std::u32string& p) {
    std::vector<PatternItem> items;
    for (size_t i = 0; i < p.size(); ++i) {
        const char32_t c = p[i];
        PatternItem item;
        if (c == U'*') {
            if (!items.empty() && items.back().kind == PatternItem::AnyRun)
                continue;
            item.kind = PatternItem::AnyRun;
        } else if (c == U'?') {
            item.kind = PatternItem::AnyOne;
        } else if (c == U'#') {
            item.kind = PatternItem::Digit;
        } else if (c == U'[' && p.find(U']', i + 1) != std::u32string::npos) {
            const size_t close = p.find(U']', i + 1);
            size_t j = i + 1;
            item.kind = PatternItem::Class;
            if (j < close && p[j] == U'!') {
                item.negated = true;
                ++j;
            }
            for (; j < close; ++j) {
                if (j + 2 < close && p[j + 1] == U'-') {
                    item.ranges.emplace_back(fold_one(p[j]), fold_one(p[j + 2]));
                    j += 2;
                } else {
                    item.ranges.emplace_back(fold_one(p[j]), fold_one(p[j]));
                }
            }
            i = close;
        } else {
            std::u32string folded;
            append_primary(c, folded);
            for (char32_t f : folded) {
                PatternItem lit;
                lit.literal = f;
                items.push_back(lit);
            }
            continue;
        }
        items.push_back(std::move(item));
    }
    return items;
}

bool item_matches(const PatternItem& item, char32_t c) {
    switch (item.kind) {
    case PatternItem::Literal:
        return item.literal == c;
    case PatternItem::AnyOne:
        return true;
    case PatternItem::Digit:
        return c >= U'0' && c <= U'9';
    case PatternItem::Class: {
        const bool inside = std::any_of(item.ranges.begin(), item.ranges.end(),
                                        [c](const auto& r) { return c >= r.first && c <= r.second; });
        return inside != item.negated;
    }
    case PatternItem::AnyRun:
        return true;
    }
    return false;
}

// Classic wildcard matching with one back-tracking point for the last '*'.
bool match(const std::u32string& text, const std::vector<PatternItem>& pattern) {
    size_t t = 0, p = 0;
    size_t starP = std::u32string::npos, starT = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p].kind == PatternItem::AnyRun) {
            starP = p++;
            starT = t;
        } else if (p < pattern.size() && item_matches(pattern[p], text[t])) {
            ++p;
            ++t;
        } else if (starP != std::u32string::npos) {
            p = starP + 1;
            t = ++starT;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p].kind == PatternItem::AnyRun)
        ++p;
    return p == pattern.size();
}

// Reads code points from UTF-8 one at a time, with the same leniency as decode().
class Utf8Cursor {
public:
    explicit Utf8Cursor(std::string_view s)
        : p_(reinterpret_cast<const unsigned char*>(s.data())), end_(p_ + s.size()) {}
    bool done() const { return p_ == end_; }
    char32_t next() {
        const unsigned char b = *p_;
        const size_t extra = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
        if (extra == 0 || static_cast<size_t>(end_ - p_) <= extra) {
            ++p_;
            return b;
        }
        char32_t c = b & (0x3F >> extra);
        for (size_t k = 1; k <= extra; ++k) {
            if ((p_[k] & 0xC0) != 0x80) {
                ++p_;
                return b;
            }
            c = (c << 6) | (p_[k] & 0x3F);
        }
        p_ += extra + 1;
        return c;
    }

private:
    const unsigned char* p_;
    const unsigned char* end_;
};

// The primary units of a text, one at a time, without building the key.
class PrimaryStream {
public:
    explicit PrimaryStream(std::string_view s) : in_(s) {}
    bool next(char32_t& out) {
        while (index_ == buffer_.size()) {
            if (in_.done())
                return false;
            buffer_.clear();
            index_ = 0;
            append_primary(in_.next(), buffer_);
        }
        out = buffer_[index_++];
        return true;
    }

private:
    Utf8Cursor in_;
    std::u32string buffer_; // at most two units: stays within the small-string buffer
    size_t index_ = 0;
};

int compare_primary_streams(std::string_view a, std::string_view b) {
    PrimaryStream sa(a), sb(b);
    for (;;) {
        char32_t x = 0, y = 0;
        const bool hasA = sa.next(x), hasB = sb.next(y);
        if (!hasA || !hasB)
            return hasA == hasB ? 0 : (hasA ? 1 : -1);
        if (x != y)
            return x < y ? -1 : 1;
    }
}

template <typename Weight> int compare_utf8_by(std::string_view a, std::string_view b, Weight weight) {
    Utf8Cursor ca(a), cb(b);
    while (!ca.done() && !cb.done()) {
        const auto wa = weight(ca.next());
        const auto wb = weight(cb.next());
        if (wa != wb)
            return wa < wb ? -1 : 1;
    }
    return ca.done() == cb.done() ? 0 : (ca.done() ? -1 : 1);
}

} // namespace

std::u32string primary_key(QStringView text) {
    return primary_of(decode(text));
}
std::u32string primary_key_utf8(std::string_view utf8) {
    return primary_of(decode(utf8));
}

int compare_primary(std::string_view a, std::string_view b) {
    if (a == b)
        return 0;
    if (is_ascii(a) && is_ascii(b)) {
        const size_t n = std::min(a.size(), b.size());
        for (size_t i = 0; i < n; ++i) {
            const char ca = ascii_lower(a[i]), cb = ascii_lower(b[i]);
            if (ca != cb)
                return static_cast<unsigned char>(ca) < static_cast<unsigned char>(cb) ? -1 : 1;
        }
        return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
    }
    return compare_primary_streams(a, b);
}

int compare_french(std::string_view a, std::string_view b) {
    if (a == b) // most comparisons while sorting names meet the same name
        return 0;
    if (is_ascii(a) && is_ascii(b)) {
        if (const int primary = compare_primary(a, b))
            return primary;
        // Same letters: lower case first, then byte order.
        for (size_t i = 0; i < a.size(); ++i) {
            const bool ua = a[i] >= 'A' && a[i] <= 'Z', ub = b[i] >= 'A' && b[i] <= 'Z';
            if (ua != ub)
                return ua ? 1 : -1;
        }
        return 0;
    }
    if (const int primary = compare_primary_streams(a, b))
        return primary;
    if (const int accents = compare_utf8_by(a, b, accent_weight))
        return accents;
    return compare_utf8_by(a, b, [](char32_t c) { return is_upper(c) ? 1 : 0; });
}

int compare_french(QStringView a, QStringView b) {
    const QByteArray ua = a.toUtf8(), ub = b.toUtf8();
    return compare_french(std::string_view(ua.constData(), ua.size()),
                          std::string_view(ub.constData(), ub.size()));
}

namespace {

// Values shifted by 2 and written as UTF-8 would be: byte order follows value order, and the bytes 0 and
// 1 stay free for the key's own marks.
void put_unit(char32_t value, std::string& key) {
    const char32_t v = value + 2;
    if (v < 0x80) {
        key += static_cast<char>(v);
    } else if (v < 0x800) {
        key += static_cast<char>(0xC0 | (v >> 6));
        key += static_cast<char>(0x80 | (v & 0x3F));
    } else if (v < 0x10000) {
        key += static_cast<char>(0xE0 | (v >> 12));
        key += static_cast<char>(0x80 | ((v >> 6) & 0x3F));
        key += static_cast<char>(0x80 | (v & 0x3F));
    } else {
        key += static_cast<char>(0xF0 | (v >> 18));
        key += static_cast<char>(0x80 | ((v >> 12) & 0x3F));
        key += static_cast<char>(0x80 | ((v >> 6) & 0x3F));
        key += static_cast<char>(0x80 | (v & 0x3F));
    }
}

constexpr char end_of_column = '\x01';

} // namespace

// A text without accent and capital: the first of all texts with its letters, so its ties take one byte.
bool is_plain(std::string_view text) {
    for (Utf8Cursor c(text); !c.done();) {
        const char32_t code = c.next();
        if (accent_weight(code) != 0 || is_upper(code))
            return false;
    }
    return true;
}

std::string sort_key(const std::vector<std::optional<std::string_view>>& columns) {
    std::string key;
    key.reserve(24 * columns.size());
    // Primary: 1 for a missing value, else 2 and the folded letters; each column closed by 1.
    for (const auto& column : columns) {
        if (!column) {
            key += '\x01';
        } else {
            key += '\x02';
            PrimaryStream units(*column);
            for (char32_t unit = 0; units.next(unit);)
                put_unit(unit, key);
        }
        key += end_of_column;
    }
    // Ties, column by column: 1 for a plain text; else 2, the accents (1 for none, 2 and the weight for
    // one) closed by 0, then the case of each character (1 lower, 2 upper) closed by 0.
    for (const auto& column : columns) {
        if (!column)
            continue;
        if (is_plain(*column)) {
            key += '\x01';
            continue;
        }
        key += '\x02';
        for (Utf8Cursor c(*column); !c.done();) {
            const char32_t weight = accent_weight(c.next());
            if (weight == 0) {
                key += '\x01';
                continue;
            }
            key += '\x02';
            key += static_cast<char>(weight >> 16);
            key += static_cast<char>((weight >> 8) & 0xFF);
            key += static_cast<char>(weight & 0xFF);
        }
        key += '\0';
        for (Utf8Cursor c(*column); !c.done();)
            key += is_upper(c.next()) ? '\x02' : '\x01';
        key += '\0';
    }
    return key;
}

LikePattern::LikePattern(std::string_view utf8Pattern) : items_(compile_pattern(decode(utf8Pattern))) {}

LikePattern::~LikePattern() = default;

bool LikePattern::matches(std::string_view utf8Text) {
    folded_.clear();
    for (Utf8Cursor c(utf8Text); !c.done();)
        append_primary(c.next(), folded_);
    return match(folded_, items_);
}

bool jet_like(std::string_view utf8Text, std::string_view utf8Pattern) {
    return LikePattern(utf8Pattern).matches(utf8Text);
}

bool jet_like(QStringView text, QStringView pattern) {
    return match(primary_key(text), compile_pattern(decode(pattern)));
}

} // namespace dao
