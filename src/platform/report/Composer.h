#pragma once

#include "platform/report/Layout.h"
#include "platform/report/RenderedReport.h"

#include <QDate>
#include <QString>
#include <map>
#include <memory>

// Lays out a report: reads its rows from the work database through the layout and the selection, and
// returns the pages and the sheet that the destinations receive. `today` is the date the texts print.
std::unique_ptr<RenderedReport> composeReport(const Layout& layout, const QString& databasePath,
                                              const QString& selection,
                                              const std::map<QString, QString>& formulas, const QDate& today);

// The width a text takes on paper in that font, in millimetres.
double textWidth(const FontSpec& font, const QString& text);
// The height of a text wrapped to a width, in millimetres; line breaks kept.
double textHeight(const FontSpec& font, const QString& text, double width);
