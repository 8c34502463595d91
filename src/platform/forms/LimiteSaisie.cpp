#include "platform/forms/LimiteSaisie.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QValidator>
#include <algorithm>

namespace {

// Only the user's edits are held to the limit. The box tells them apart: setText leaves it unmodified,
// while an edit of the user marks it modified before the validator sees the new text.
class LimiteDeSaisie : public QValidator {
public:
    LimiteDeSaisie(QLineEdit& boîte, int longueur)
        : QValidator(&boîte), boîte_(boîte), longueur_(longueur), avant_(boîte.text()) {
        connect(&boîte, &QLineEdit::textChanged, this, [this](const QString& texte) { avant_ = texte; });
    }

    int longueur() const { return longueur_; }

    State validate(QString& texte, int& position) const override {
        const qsizetype permis = std::max<qsizetype>(longueur_, avant_.size());
        if (texte.size() <= permis || !boîte_.isModified())
            return Acceptable;
        // What does not fit of the text just typed or pasted, before the cursor, is left out; when
        // nothing of it fits, the edit is refused whole and the box stays as it was.
        const qsizetype surplus = texte.size() - permis;
        if (position < surplus)
            return Invalid;
        const QString gardé = QString(texte).remove(position - surplus, surplus);
        if (gardé == avant_)
            return Invalid;
        texte = gardé;
        position -= static_cast<int>(surplus);
        return Acceptable;
    }

private:
    QLineEdit& boîte_;
    int longueur_;
    QString avant_; // the text before the edit being validated
};

} // namespace

void limiter_saisie(QLineEdit& boîte, int longueur) {
    boîte.setValidator(new LimiteDeSaisie(boîte, longueur));
}

int limite_saisie(const QLineEdit& boîte) {
    const auto* limite = dynamic_cast<const LimiteDeSaisie*>(boîte.validator());
    return limite ? limite->longueur() : boîte.maxLength();
}

void limiter_saisie(QPlainTextEdit& zone, int longueur) {
    zone.setProperty("maxLength", longueur);
    QObject::connect(&zone, &QPlainTextEdit::textChanged, &zone, [&zone, longueur] {
        const QString texte = zone.toPlainText();
        if (texte.size() <= longueur)
            return;
        zone.setPlainText(texte.left(longueur));
        zone.moveCursor(QTextCursor::End);
    });
}
