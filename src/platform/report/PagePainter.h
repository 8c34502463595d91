#pragma once

#include "platform/report/RenderedReport.h"

class QPainter;

// Draws a page of a report on any painter: the preview's, a printer's, a PDF's. `dotsPerMm` is the
// painter's scale (its device's resolution times the zoom), `pointScale` what a point of text becomes
// on that device (the zoom, the device's own resolution applying to fonts by itself).
void paintPage(QPainter& painter, const ReportPage& page, double dotsPerMm, double pointScale);

// A chart of counts drawn with Qt Charts into a rectangle of the painter's device.
void paintChart(QPainter& painter, const ChartElement& chart, const QRectF& target, double pointScale);
void paintImage(QPainter& painter, const ImageElement& picture, const QRectF& target);
