#pragma once

#include <QByteArray>
#include <vector>

#include "platform/report/RenderedReport.h"

class QIODevice;

// The file formats of a report. Each writes the whole file to the device, raising a VbError when the
// device refuses part of it (61 disk full, 75 otherwise), so that the safe-save writer keeps no torn file.

// PDF, the pages as drawn.
void writePdf(const RenderedReport& report, QIODevice& device);

// Rich text: each page as it is drawn, its texts in frames placed on the page, its lines and boxes as
// shapes, a chart as a picture; a word processor shows the same pages.
void writeRtf(const RenderedReport& report, QIODevice& device);

// A workbook of the spreadsheet format of the 97 to 2003 versions (BIFF8 in a compound file): the
// report's rows, texts as texts, numbers as numbers, dates as dates. A sheet holds 65,536 rows: past
// them the rows go on in the next sheet, under the same headings.
void writeXls(const RenderedReport& report, QIODevice& device);

// The compound file (the container of the format above) holding one stream named `streamName`, given
// in pieces.
void writeCompoundFile(QIODevice& device, const QString& streamName, const std::vector<QByteArray>& stream);
