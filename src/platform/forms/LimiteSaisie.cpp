#include "platform/forms/LimiteSaisie.h"

#include <QPlainTextEdit>
#include <QTextCursor>

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
