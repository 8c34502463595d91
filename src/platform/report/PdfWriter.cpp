#include "platform/files/SafeSave.h"
#include "platform/report/PagePainter.h"
#include "platform/report/Writers.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

void writePdf(const RenderedReport& report, QIODevice& device) {
    // Drawn in memory first: the PDF engine does not tell when its device refuses a write.
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setResolution(600);
        pdf.setTitle(report.title);
        pdf.setCreator(u"Norvane"_s);
        // The pages are drawn from the paper's corner: the layout's margins are in its elements.
        QPageLayout paper = report.pageLayout;
        paper.setMinimumMargins(QMarginsF());
        paper.setMargins(QMarginsF());
        pdf.setPageLayout(paper);
        QPainter painter(&pdf);
        const double dotsPerMm = pdf.resolution() / 25.4;
        for (int i = 0; i < report.pageCount(); ++i) {
            if (i > 0)
                pdf.newPage();
            paintPage(painter, report.page(i), dotsPerMm, 1.0);
        }
    }
    writeAll(device, buffer.data());
}
