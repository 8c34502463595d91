#include "generator/Portraits.h"

#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"

#include <QColor>
#include <QDir>
#include <QPainter>
#include <QPainterPath>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// A little arithmetic from the number: the same child, the same picture.
int trait(int numéro, int sel, int valeurs) {
    const unsigned h = static_cast<unsigned>(numéro) * 2654435761u ^ static_cast<unsigned>(sel) * 40503u;
    return static_cast<int>((h >> 7) % static_cast<unsigned>(valeurs));
}

const std::array<QColor, 5> fonds = {QColor(0xcf, 0xe3, 0xf2), QColor(0xe8, 0xdf, 0xc8),
                                     QColor(0xd9, 0xe8, 0xd0), QColor(0xec, 0xd5, 0xdc),
                                     QColor(0xdd, 0xdd, 0xe8)};
const std::array<QColor, 4> peaux = {QColor(0xf4, 0xd3, 0xb8), QColor(0xe0, 0xb0, 0x8a),
                                     QColor(0xb9, 0x85, 0x5c), QColor(0x8a, 0x5a, 0x3c)};
const std::array<QColor, 4> cheveux = {QColor(0x3b, 0x2a, 0x1e), QColor(0x8c, 0x5a, 0x2b),
                                       QColor(0xd8, 0xb0, 0x5e), QColor(0x1c, 0x1c, 0x1c)};
const std::array<QColor, 5> habits = {QColor(0x3c, 0x6e, 0xa8), QColor(0xc0, 0x45, 0x45),
                                      QColor(0x4f, 0x8a, 0x4f), QColor(0xe0, 0x9a, 0x2c),
                                      QColor(0x7a, 0x55, 0x9e)};

} // namespace

QImage portrait(int numéro, QSize taille, bool garçon) {
    QImage image(taille, QImage::Format_RGB32);
    const double w = taille.width(), h = taille.height();
    image.fill(fonds[trait(numéro, 1, fonds.size())]);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    const QColor peau = peaux[trait(numéro, 2, peaux.size())];
    const QColor chevelure = cheveux[trait(numéro, 3, cheveux.size())];
    // Shoulders and neck.
    p.setBrush(habits[trait(numéro, 4, habits.size())]);
    p.drawEllipse(QRectF(w * 0.08, h * 0.72, w * 0.84, h * 0.56));
    p.setBrush(peau.darker(108));
    p.drawRect(QRectF(w * 0.42, h * 0.58, w * 0.16, h * 0.16));
    // Long hair behind the face for some.
    const bool longs = !garçon && trait(numéro, 5, 3) != 0;
    p.setBrush(chevelure);
    if (longs)
        p.drawRoundedRect(QRectF(w * 0.2, h * 0.2, w * 0.6, h * 0.55), w * 0.2, w * 0.2);
    // The face.
    p.setBrush(peau);
    const QRectF visage(w * 0.27, h * 0.22, w * 0.46, h * 0.44);
    p.drawEllipse(visage);
    // Hair on top.
    p.setBrush(chevelure);
    QPainterPath dessus;
    dessus.moveTo(visage.left() - w * 0.02, visage.top() + visage.height() * 0.42);
    dessus.cubicTo(visage.left(), visage.top() - h * 0.08, visage.right(), visage.top() - h * 0.08,
                   visage.right() + w * 0.02, visage.top() + visage.height() * 0.42);
    dessus.cubicTo(visage.right() - w * 0.1, visage.top() + visage.height() * 0.12, visage.left() + w * 0.1,
                   visage.top() + visage.height() * 0.2, visage.left() - w * 0.02,
                   visage.top() + visage.height() * 0.42);
    p.drawPath(dessus);
    // Eyes and smile.
    p.setBrush(QColor(0x2b, 0x2b, 0x33));
    const double œil = w * 0.035;
    p.drawEllipse(QPointF(w * 0.41, h * 0.44), œil, œil);
    p.drawEllipse(QPointF(w * 0.59, h * 0.44), œil, œil);
    QPen sourire(QColor(0x9a, 0x4a, 0x40), w * 0.018, Qt::SolidLine, Qt::RoundCap);
    p.setPen(sourire);
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(w * 0.42, h * 0.47, w * 0.16, h * 0.1), 200 * 16, 140 * 16);
    return image;
}

void photographier_élèves(Database& base, const QString& dossier, int combien) {
    if (!QDir().mkpath(dossier))
        throw VbError(76);
    auto élèves = base.OpenRecordset(u"SELECT * FROM élèves ORDER BY matricule ASC"_s);
    for (int i = 0; i < combien && !élèves->isEOF(); ++i, élèves->MoveNext()) {
        const QString matricule = élèves->field(u"matricule"_s).toString();
        const bool garçon = élèves->field(u"sexe_élève"_s).toString() == u"Masculin"_s;
        const QString chemin = QDir(dossier).absoluteFilePath(u"eleve_"_s + matricule + u".jpg"_s);
        if (!portrait(matricule.toInt(), QSize(240, 300), garçon).save(chemin, "JPG", 88))
            throw VbError(75);
        élèves->Edit();
        élèves->setField(u"chemin_photo"_s, QDir::toNativeSeparators(chemin));
        élèves->Update();
    }
}
