#include "platform/files/SafeSave.h"
#include "platform/report/ReportErrors.h"
#include "platform/report/Writers.h"

#include <QDate>
#include <QHash>
#include <QtEndian>
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int max_rows = 65536;
constexpr int max_columns = 256;
constexpr int max_record_data = 8224;

// Little-endian bytes, as every number of the format is written.
class Bytes {
public:
    Bytes& u8(int v) {
        data_.append(static_cast<char>(v & 0xFF));
        return *this;
    }
    Bytes& u16(int v) {
        const char b[2] = {static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)};
        data_.append(b, 2);
        return *this;
    }
    Bytes& u32(quint32 v) {
        char b[4];
        qToLittleEndian(v, b);
        data_.append(b, 4);
        return *this;
    }
    Bytes& f64(double v) {
        char raw[8];
        qToLittleEndian(v, raw);
        data_.append(raw, 8);
        return *this;
    }
    Bytes& utf16(QStringView s) {
        const qsizetype at = data_.size();
        data_.resize(at + 2 * s.size());
        qToLittleEndian<quint16>(s.utf16(), s.size(), data_.data() + at);
        return *this;
    }
    Bytes& latin1(QStringView s) {
        data_.append(s.toLatin1());
        return *this;
    }
    Bytes& raw(const QByteArray& b) {
        data_ += b;
        return *this;
    }
    const QByteArray& data() const { return data_; }
    QByteArray& data() { return data_; }
    qsizetype size() const { return data_.size(); }

private:
    QByteArray data_;
};

void record(Bytes& stream, int type, const Bytes& body) {
    stream.u16(type).u16(static_cast<int>(body.size())).raw(body.data());
}

// A text whose letters all fit in one byte is written so, the others in two bytes a letter.
bool isWide(QStringView s) {
    return std::any_of(s.begin(), s.end(), [](QChar c) { return c.unicode() > 0xFF; });
}

Bytes bof(int kind) {
    Bytes b;
    b.u16(0x0600).u16(kind).u16(0x0DBB).u16(0x07CC).u32(0).u32(6);
    return b;
}

Bytes font(bool bold) {
    Bytes b;
    const QString name = u"Arial"_s;
    b.u16(200).u16(0).u16(0x7FFF).u16(bold ? 700 : 400).u16(0).u8(0).u8(0).u8(0).u8(0);
    b.u8(static_cast<int>(name.size())).u8(1).utf16(name);
    return b;
}

// A cell format. A style format stands for itself; a cell format takes the Normal style as parent.
Bytes xf(int fontIndex, int format, bool style) {
    Bytes b;
    b.u16(fontIndex).u16(format).u16(style ? 0xFFF5 : 0x0001);
    b.u8(0x20).u8(0).u8(0).u8(style ? 0 : 0xF8); // aligned at the bottom, as the default style
    b.u32(0).u32(0).u16(0x20C0);
    return b;
}

// The strings of the workbook, each once, in the shared table that its cells point into.
class SharedStrings {
public:
    int index(const QString& s) {
        ++total_;
        const auto it = index_.constFind(s);
        if (it != index_.constEnd())
            return *it;
        const int added = static_cast<int>(strings_.size());
        index_.insert(s, added);
        strings_.push_back(s);
        return added;
    }

    // The table and its index of every eighth string. A record holds at most 8224 bytes; a string
    // cut at that point goes on in a CONTINUE record, which starts again with the string's flags.
    void write(Bytes& stream) const {
        const int perBucket = std::max(8, static_cast<int>((strings_.size() + 127) / 128));
        struct Bucket {
            quint32 position;
            int offset;
        };
        std::vector<Bucket> buckets;
        std::vector<Bytes> records(1);
        std::vector<int> types{0x00FC};
        records[0].u32(static_cast<quint32>(total_)).u32(static_cast<quint32>(strings_.size()));
        qsizetype before = 0; // bytes of the stream before the current record's header
        const qsizetype start = stream.size();
        auto newRecord = [&] {
            before += 4 + records.back().size();
            records.emplace_back();
            types.push_back(0x003C);
        };
        for (size_t i = 0; i < strings_.size(); ++i) {
            const QString& s = strings_[i];
            const bool wide = isWide(s);
            const int width = wide ? 2 : 1;
            if (max_record_data - records.back().size() < 3 + width)
                newRecord();
            if (i % perBucket == 0)
                buckets.push_back({static_cast<quint32>(start + before + 4 + records.back().size()),
                                   static_cast<int>(4 + records.back().size())});
            records.back().u16(static_cast<int>(s.size())).u8(wide ? 1 : 0);
            qsizetype written = 0;
            while (written < s.size()) {
                qsizetype room = (max_record_data - records.back().size()) / width;
                if (room <= 0) {
                    newRecord();
                    records.back().u8(wide ? 1 : 0);
                    room = (max_record_data - records.back().size()) / width;
                }
                const qsizetype n = std::min(room, s.size() - written);
                if (wide)
                    records.back().utf16(QStringView(s).mid(written, n));
                else
                    records.back().latin1(QStringView(s).mid(written, n));
                written += n;
            }
        }
        for (size_t r = 0; r < records.size(); ++r)
            record(stream, types[r], records[r]);
        Bytes ext;
        ext.u16(perBucket);
        for (const Bucket& b : buckets)
            ext.u32(b.position).u16(b.offset).u16(0);
        record(stream, 0x00FF, ext);
    }

private:
    QHash<QString, int> index_;
    std::vector<QString> strings_;
    int total_ = 0;
};

// Days since 30 December 1899, as the format counts dates.
double serial(const QDate& date) {
    return static_cast<double>(QDate(1899, 12, 30).daysTo(date));
}

constexpr int cell_xf = 15, date_xf = 16, heading_xf = 17;

// One sheet's cells as they are added, row by row, and its columns' widths.
class SheetCells {
public:
    SheetCells(SharedStrings& strings, int rows, size_t columns)
        : strings_(strings), widths_(max_columns, 8) {
        cells_.reserve(static_cast<qsizetype>(std::min<size_t>(rows * columns * 12, 512u << 20)));
    }

    void add(int row, const SheetRow& cells, bool heading) {
        ++rows_;
        const int xfIndex = heading ? heading_xf : cell_xf;
        const int count = static_cast<int>(std::min<size_t>(cells.size(), max_columns));
        columns_ = std::max(columns_, count);
        for (int c = 0; c < count; ++c) {
            const QVariant& v = cells[c];
            switch (v.typeId()) {
            case QMetaType::QDate:
                if (v.toDate().isValid()) {
                    number(row, c, date_xf, serial(v.toDate()));
                    widths_[c] = std::max(widths_[c], 11);
                }
                break;
            case QMetaType::Double:
            case QMetaType::LongLong:
            case QMetaType::Int:
                number(row, c, xfIndex, v.toDouble());
                break;
            default: {
                const QString text = v.toString();
                if (text.isEmpty())
                    break;
                char b[14];
                qToLittleEndian<quint16>(0x00FD, b);
                qToLittleEndian<quint16>(10, b + 2);
                qToLittleEndian<quint16>(row, b + 4);
                qToLittleEndian<quint16>(c, b + 6);
                qToLittleEndian<quint16>(xfIndex, b + 8);
                qToLittleEndian<quint32>(strings_.index(text), b + 10);
                cells_.append(b, sizeof b);
                widths_[c] = std::max(widths_[c], std::min(60, static_cast<int>(text.size()) + 2));
            }
            }
        }
    }

    // The sheet's records, in three pieces around its cells, which are not copied; the index's pointer
    // to the default width is set once the sheet's place in the stream is known.
    std::vector<QByteArray> finish(quint32 at) const {
        Bytes head;
        record(head, 0x0809, bof(0x0010));
        const qsizetype indexAt = head.size() + 4;
        record(head, 0x020B, Bytes().u32(0).u32(0).u32(static_cast<quint32>(rows_)).u32(0));
        const qsizetype defaultWidthAt = head.size();
        record(head, 0x0055, Bytes().u16(8));
        for (int c = 0; c < columns_; ++c)
            record(head, 0x007D, Bytes().u16(c).u16(c).u16(widths_[c] * 256).u16(cell_xf).u16(0).u16(0));
        record(head, 0x0200, Bytes().u32(0).u32(static_cast<quint32>(rows_)).u16(0).u16(columns_).u16(0));
        qToLittleEndian(static_cast<quint32>(at + defaultWidthAt), head.data().data() + indexAt + 12);
        Bytes tail;
        record(tail, 0x023E, Bytes().u16(0x06B6).u16(0).u16(0).u32(0x40).u16(0).u16(0).u32(0));
        record(tail, 0x000A, Bytes());
        return {head.data(), cells_, tail.data()};
    }

private:
    void number(int row, int column, int xfIndex, double value) {
        char b[18];
        qToLittleEndian<quint16>(0x0203, b);
        qToLittleEndian<quint16>(14, b + 2);
        qToLittleEndian<quint16>(row, b + 4);
        qToLittleEndian<quint16>(column, b + 6);
        qToLittleEndian<quint16>(xfIndex, b + 8);
        qToLittleEndian(value, b + 10);
        cells_.append(b, sizeof b);
    }

    SharedStrings& strings_;
    QByteArray cells_;
    std::vector<int> widths_;
    int rows_ = 0, columns_ = 0;
};

// A sheet's name: at most 31 characters, none of those the format refuses, numbered after the first.
QString sheetName(const QString& title, int number) {
    QString name = title.isEmpty() ? u"Feuil1"_s : title;
    for (const QChar c : u"[]:*?/\\")
        name.replace(c, u'-');
    if (number == 1)
        return name.left(31);
    const QString suffix = u" (%1)"_s.arg(number);
    return name.left(31 - suffix.size()) + suffix;
}

// The workbook: one sheet, or as many as the rows need, each with the headings on its first row; the
// stream in pieces, written one after the other.
std::vector<QByteArray> workbook(const RenderedReport& report) {
    const int rows = report.sheetRowCount();
    const SheetRow headings = rows > 0 ? report.sheetRow(0) : SheetRow();
    constexpr int per_sheet = max_rows - 1;
    const int data = std::max(0, rows - 1);
    const int sheets = std::max(1, (data + per_sheet - 1) / per_sheet);
    SharedStrings strings;
    std::vector<SheetCells> parts;
    for (int s = 0; s < sheets; ++s) {
        SheetCells& part = parts.emplace_back(strings, std::min(rows, per_sheet + 1), headings.size());
        if (rows > 0)
            part.add(0, headings, true);
        const int first = 1 + s * per_sheet, last = std::min(rows, first + per_sheet);
        for (int r = first; r < last; ++r)
            part.add(r - first + 1, report.sheetRow(r), false);
    }

    Bytes globals;
    record(globals, 0x0809, bof(0x0005));
    record(globals, 0x0042, Bytes().u16(1200)); // texts in UTF-16
    record(globals, 0x003D,
           Bytes().u16(0).u16(0).u16(0x4000).u16(0x2000).u16(0x0038).u16(0).u16(0).u16(1).u16(0x0258));
    record(globals, 0x0022, Bytes().u16(0)); // dates counted from 1900
    for (int i = 0; i < 4; ++i)
        record(globals, 0x0031, font(false));
    record(globals, 0x0031, font(true)); // font 5: the format has no font 4
    const QString dateFormat = u"dd/mm/yyyy"_s;
    record(globals, 0x041E,
           Bytes().u16(164).u16(static_cast<int>(dateFormat.size())).u8(1).utf16(dateFormat));
    for (int i = 0; i < 15; ++i)
        record(globals, 0x00E0, xf(0, 0, true));
    record(globals, 0x00E0, xf(0, 0, false));   // 15: a cell
    record(globals, 0x00E0, xf(0, 164, false)); // 16: a date
    record(globals, 0x00E0, xf(5, 0, false));   // 17: a heading
    record(globals, 0x0293, Bytes().u16(0x8000).u8(0).u8(0xFF));
    std::vector<qsizetype> positionsAt;
    for (int s = 0; s < sheets; ++s) {
        const QString name = sheetName(report.title, s + 1);
        positionsAt.push_back(globals.size() + 4);
        record(globals, 0x0085,
               Bytes().u32(0).u8(0).u8(0).u8(static_cast<int>(name.size())).u8(1).utf16(name));
    }
    strings.write(globals);
    record(globals, 0x000A, Bytes());

    std::vector<QByteArray> book{globals.data()};
    qsizetype at = globals.size();
    for (int s = 0; s < sheets; ++s) {
        qToLittleEndian(static_cast<quint32>(at), book.front().data() + positionsAt[s]);
        for (QByteArray& piece : parts[s].finish(static_cast<quint32>(at))) {
            at += piece.size();
            book.push_back(std::move(piece));
        }
    }
    return book;
}

// The container's numbers: sectors of 512 bytes, and the marks of its allocation table.
constexpr int sector = 512;
constexpr quint32 free_sector = 0xFFFFFFFF, end_of_chain = 0xFFFFFFFE, fat_sector = 0xFFFFFFFD,
                  difat_sector = 0xFFFFFFFC, no_stream = 0xFFFFFFFF;

QByteArray directoryEntry(const QString& name, int type, quint32 child, quint32 start, quint32 size) {
    Bytes b;
    b.utf16(name).u16(0);
    QByteArray entry = b.data().leftJustified(64, '\0', true);
    Bytes rest;
    rest.u16(static_cast<int>((name.size() + 1) * 2)).u8(type).u8(1).u32(no_stream).u32(no_stream).u32(child);
    rest.raw(QByteArray(16, '\0')).u32(0).raw(QByteArray(16, '\0')).u32(start).u32(size).u32(0);
    return entry + rest.data();
}

} // namespace

void writeCompoundFile(QIODevice& device, const QString& streamName, const std::vector<QByteArray>& pieces) {
    qsizetype length = 0;
    for (const QByteArray& piece : pieces)
        length += piece.size();
    // Streams under 4096 bytes would go to the small-stream area; padding keeps the one stream whole.
    const qsizetype size = std::max<qsizetype>(length, 4096);
    const quint32 streamSectors = static_cast<quint32>((size + sector - 1) / sector);
    quint32 fatSectors = 1, difatSectors = 0;
    for (;;) {
        const quint32 total = streamSectors + fatSectors + difatSectors + 1;
        const quint32 needFat = (total + 127) / 128;
        const quint32 needDifat = needFat > 109 ? (needFat - 109 + 126) / 127 : 0;
        if (needFat == fatSectors && needDifat == difatSectors)
            break;
        fatSectors = needFat;
        difatSectors = needDifat;
    }
    const quint32 firstFat = streamSectors, firstDifat = firstFat + fatSectors,
                  directory = firstDifat + difatSectors;

    std::vector<quint32> fat(fatSectors * 128, free_sector);
    for (quint32 s = 0; s < streamSectors; ++s)
        fat[s] = s + 1 < streamSectors ? s + 1 : end_of_chain;
    for (quint32 s = 0; s < fatSectors; ++s)
        fat[firstFat + s] = fat_sector;
    for (quint32 s = 0; s < difatSectors; ++s)
        fat[firstDifat + s] = difat_sector;
    fat[directory] = end_of_chain;

    Bytes header;
    header.raw(QByteArray::fromHex("D0CF11E0A1B11AE1")).raw(QByteArray(16, '\0'));
    header.u16(0x003E).u16(0x0003).u16(0xFFFE).u16(9).u16(6).raw(QByteArray(6, '\0'));
    header.u32(0).u32(fatSectors).u32(directory).u32(0).u32(4096).u32(end_of_chain).u32(0);
    header.u32(difatSectors > 0 ? firstDifat : end_of_chain).u32(difatSectors);
    for (quint32 i = 0; i < 109; ++i)
        header.u32(i < fatSectors ? firstFat + i : free_sector);
    writeAll(device, header.data());
    for (const QByteArray& piece : pieces)
        writeAll(device, piece);
    writeAll(device, QByteArray(static_cast<qsizetype>(streamSectors) * sector - length, '\0'));

    Bytes tables;
    for (quint32 v : fat)
        tables.u32(v);
    for (quint32 d = 0; d < difatSectors; ++d) {
        for (quint32 i = 0; i < 127; ++i) {
            const quint32 f = 109 + d * 127 + i;
            tables.u32(f < fatSectors ? firstFat + f : free_sector);
        }
        tables.u32(d + 1 < difatSectors ? firstDifat + d + 1 : end_of_chain);
    }
    QByteArray entries = directoryEntry(u"Root Entry"_s, 5, 1, end_of_chain, 0);
    entries += directoryEntry(streamName, 2, no_stream, 0, static_cast<quint32>(size));
    entries = entries.leftJustified(sector, '\0');
    // The two unused entries of the sector are empty, with no siblings.
    for (int e = 2; e < 4; ++e)
        for (int k : {68, 72, 76})
            qToLittleEndian(no_stream, entries.data() + e * 128 + k);
    tables.raw(entries);
    writeAll(device, tables.data());
}

void writeXls(const RenderedReport& report, QIODevice& device) {
    writeCompoundFile(device, u"Workbook"_s, workbook(report));
}
