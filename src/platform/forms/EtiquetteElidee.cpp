#include "platform/forms/EtiquetteElidee.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

using namespace Qt::StringLiterals;

int ÉtiquetteÉlidée::largeurDisponible() const {
    return contentsRect().width() - 2 * margin() - std::max(indent(), 0);
}

QString ÉtiquetteÉlidée::texteAffiché() const {
    return fontMetrics().elidedText(text(), Qt::ElideMiddle, largeurDisponible());
}

QSize ÉtiquetteÉlidée::minimumSizeHint() const {
    const QSize normale = QLabel::minimumSizeHint();
    const QMargins cadre = contentsMargins();
    const int largeur = fontMetrics().horizontalAdvance(u"…"_s) + 2 * margin() + std::max(indent(), 0) +
                        cadre.left() + cadre.right() + 2 * frameWidth();
    return {std::min(normale.width(), largeur), normale.height()};
}

bool ÉtiquetteÉlidée::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const auto* aide = static_cast<QHelpEvent*>(e);
        if (texteAffiché() != text())
            QToolTip::showText(aide->globalPos(), text(), this);
        else
            QToolTip::hideText();
        return true;
    }
    return QLabel::event(e);
}

void ÉtiquetteÉlidée::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    drawFrame(&peintre);
    QRect zone = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    if (indent() > 0)
        zone.adjust(indent(), 0, 0, 0);
    style()->drawItemText(&peintre, zone, int(alignment()), palette(), isEnabled(), texteAffiché(),
                          foregroundRole());
}
