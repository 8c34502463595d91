#pragma once

#include <QLabel>

// A one-line label for a path: the whole text when there is room, otherwise the text shortened in
// the middle with "…", so that both ends stay in sight (where the file lies and its name). text()
// keeps the whole text, and the tooltip shows it whole when it is shortened. It never asks for more
// width than an ellipsis, so a long path cannot widen or clip the window around it.
class ÉtiquetteÉlidée : public QLabel {
public:
    using QLabel::QLabel;

    // The text as it is drawn at the label's present width.
    QString texteAffiché() const;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    int largeurDisponible() const;
};
