#include "platform/files/SafeSave.h"
#include "platform/report/ReportErrors.h"
#include "platform/report/Writers.h"

#include <QDate>
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
    Bytes& u16(int v) { return u8(v).u8(v >> 8); }
    Bytes& u32(quint32 v) { return u16(static_cast<int>(v & 0xFFFF)).u16(static_cast<int>(v >> 16)); }
    Bytes& f64(double v) {
        char raw[8];
        qToLittleEndian(v, raw);
        data_.append(raw, 8);
        return *this;
    }
    Bytes& utf16(const QString& s) {
        for (const QChar c : s)
            u16(c.unicode());
        return *this;
    }
    Bytes& raw(const QByteArray& b) {
        data_ += b;
        return *this;
    }
    const QByteArray& data() const { return data_; }
    qsizetype size() const { return data_.size(); }

private:
    QByteArray data_;
};

void record(Bytes& stream, int type, const Bytes& body) {
    stream.u16(type).u16(static_cast<int>(body.size())).raw(body.data());
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

// The strings of the sheet, each once, in the shared table that its cells point into.
class SharedStrings {
public:
    int index(const QString& s) {
        ++total_;
        const auto [it, added] = index_.try_emplace(s, static_cast<int>(strings_.size()));
        if (added)
            strings_.push_back(s);
        return it->second;
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
            if (max_record_data - records.back().size() < 5)
                newRecord();
            if (i % perBucket == 0)
                buckets.push_back({static_cast<quint32>(start + before + 4 + records.back().size()),
                                   static_cast<int>(4 + records.back().size())});
            records.back().u16(static_cast<int>(s.size())).u8(1);
            qsizetype written = 0;
            while (written < s.size()) {
                qsizetype room = (max_record_data - records.back().size()) / 2;
                if (room <= 0) {
                    newRecord();
                    records.back().u8(1);
                    room = (max_record_data - records.back().size()) / 2;
                }
                const qsizetype n = std::min(room, s.size() - written);
                records.back().utf16(s.mid(written, n));
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
    std::map<QString, int> index_;
    std::vector<QString> strings_;
    int total_ = 0;
};

// Days since 30 December 1899, as the format counts dates.
double serial(const QDate& date) {
    return static_cast<double>(QDate(1899, 12, 30).daysTo(date));
}

QByteArray workbook(const ReportSheet& sheet) {
    if (sheet.rows.size() > static_cast<size_t>(max_rows))
        throw VbError(report_error::too_many_rows,
                      u"Le tableau compte %1 lignes : une feuille de calcul en contient au plus %2."_s
                          .arg(sheet.rows.size())
                          .arg(max_rows));
    constexpr int cell_xf = 15, date_xf = 16, heading_xf = 17;
    SharedStrings strings;
    Bytes cells;
    size_t columns = 0;
    std::vector<int> widths(max_columns, 8);
    for (size_t r = 0; r < sheet.rows.size(); ++r) {
        const auto& row = sheet.rows[r];
        columns = std::max(columns, std::min<size_t>(row.size(), max_columns));
        for (size_t c = 0; c < row.size() && c < static_cast<size_t>(max_columns); ++c) {
            const QVariant& v = row[c];
            const int xfIndex = r == 0 ? heading_xf : cell_xf;
            Bytes b;
            b.u16(static_cast<int>(r)).u16(static_cast<int>(c));
            if (v.typeId() == QMetaType::QDate && v.toDate().isValid()) {
                b.u16(date_xf).f64(serial(v.toDate()));
                record(cells, 0x0203, b);
                widths[c] = std::max(widths[c], 11);
            } else if (v.typeId() == QMetaType::Double || v.typeId() == QMetaType::LongLong ||
                       v.typeId() == QMetaType::Int) {
                b.u16(xfIndex).f64(v.toDouble());
                record(cells, 0x0203, b);
            } else {
                const QString text = v.toString();
                if (text.isEmpty())
                    continue;
                b.u16(xfIndex).u32(static_cast<quint32>(strings.index(text)));
                record(cells, 0x00FD, b);
                widths[c] = std::max(widths[c], std::min(60, static_cast<int>(text.size()) + 2));
            }
        }
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
    const QString name = sheet.name.isEmpty() ? u"Feuil1"_s : sheet.name.left(31).replace(u'/', u'-');
    const qsizetype sheetPositionAt = globals.size() + 4;
    record(globals, 0x0085, Bytes().u32(0).u8(0).u8(0).u8(static_cast<int>(name.size())).u8(1).utf16(name));
    strings.write(globals);
    record(globals, 0x000A, Bytes());

    // The sheet: its index of rows right after its start, pointing at the default column width.
    Bytes worksheet;
    record(worksheet, 0x0809, bof(0x0010));
    const qsizetype indexAt = worksheet.size() + 4;
    record(worksheet, 0x020B, Bytes().u32(0).u32(0).u32(static_cast<quint32>(sheet.rows.size())).u32(0));
    const qsizetype defaultWidthAt = worksheet.size();
    record(worksheet, 0x0055, Bytes().u16(8));
    for (size_t c = 0; c < columns; ++c)
        record(worksheet, 0x007D,
               Bytes()
                   .u16(static_cast<int>(c))
                   .u16(static_cast<int>(c))
                   .u16(widths[c] * 256)
                   .u16(cell_xf)
                   .u16(0)
                   .u16(0));
    record(worksheet, 0x0200,
           Bytes()
               .u32(0)
               .u32(static_cast<quint32>(sheet.rows.size()))
               .u16(0)
               .u16(static_cast<int>(columns))
               .u16(0));
    worksheet.raw(cells.data());
    record(worksheet, 0x023E, Bytes().u16(0x06B6).u16(0).u16(0).u32(0x40).u16(0).u16(0).u32(0));
    record(worksheet, 0x000A, Bytes());

    QByteArray book = globals.data();
    const auto sheetStart = static_cast<quint32>(book.size());
    qToLittleEndian(sheetStart, book.data() + sheetPositionAt);
    QByteArray sheetBytes = worksheet.data();
    qToLittleEndian(static_cast<quint32>(sheetStart + defaultWidthAt), sheetBytes.data() + indexAt + 12);
    return book + sheetBytes;
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

QByteArray compoundFile(const QString& streamName, const QByteArray& content) {
    // Streams under 4096 bytes would go to the small-stream area; padding keeps the one stream whole.
    QByteArray stream = content;
    if (stream.size() < 4096)
        stream.append(QByteArray(4096 - stream.size(), '\0'));
    const quint32 streamSectors = static_cast<quint32>((stream.size() + sector - 1) / sector);
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

    Bytes file;
    file.raw(header.data());
    file.raw(stream.leftJustified(static_cast<qsizetype>(streamSectors) * sector, '\0'));
    for (quint32 v : fat)
        file.u32(v);
    for (quint32 d = 0; d < difatSectors; ++d) {
        for (quint32 i = 0; i < 127; ++i) {
            const quint32 f = 109 + d * 127 + i;
            file.u32(f < fatSectors ? firstFat + f : free_sector);
        }
        file.u32(d + 1 < difatSectors ? firstDifat + d + 1 : end_of_chain);
    }
    QByteArray entries = directoryEntry(u"Root Entry"_s, 5, 1, end_of_chain, 0);
    entries += directoryEntry(streamName, 2, no_stream, 0, static_cast<quint32>(stream.size()));
    entries = entries.leftJustified(sector, '\0');
    // The two unused entries of the sector are empty, with no siblings.
    for (int e = 2; e < 4; ++e)
        for (int k : {68, 72, 76})
            qToLittleEndian(no_stream, entries.data() + e * 128 + k);
    file.raw(entries);
    return file.data();
}

void writeXls(const RenderedReport& report, QIODevice& device) {
    writeAll(device, compoundFile(u"Workbook"_s, workbook(report.sheet())));
}
