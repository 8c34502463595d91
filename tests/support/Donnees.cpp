#include "support/Donnees.h"

#include <QFile>
#include <stdexcept>
#include <utility>

QList<QStringList> table_de_données(const QString& nom) {
    QFile fichier(QStringLiteral(NORVANE_TEST_DATA "/") + nom);
    if (!fichier.open(QIODevice::ReadOnly | QIODevice::Text))
        throw std::runtime_error("table de test illisible : " + nom.toStdString());
    QList<QStringList> lignes;
    bool entête = true;
    for (const QString& ligne : QString::fromUtf8(fichier.readAll()).split(u'\n')) {
        if (ligne.isEmpty() || ligne.startsWith(u'#'))
            continue;
        if (!std::exchange(entête, false))
            lignes << ligne.split(u'\t');
    }
    if (lignes.isEmpty())
        throw std::runtime_error("table de test vide : " + nom.toStdString());
    return lignes;
}
