#include "support/Donnees.h"

#include "platform/forms/LimiteSaisie.h"

#include <QAccessible>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

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

void jouer_table_des_champs(QWidget& écran, const QString& nom, bool ordre_clavier) {
    QWidget* précédent = nullptr;
    for (const QStringList& r : table_de_données(nom)) {
        const QString &place = r[1], &légende = r[2], &bouton = r[3], &longueur = r[4];
        SCOPED_TRACE(r[0].toStdString());
        auto* champ = écran.findChild<QWidget*>(r[0]);
        ASSERT_NE(champ, nullptr);
        bool page = false;
        const int onglet = place.toInt(&page);
        QWidget* conteneur = page ? écran.findChild<QTabWidget*>(u"SSTab1"_s)->widget(onglet)
                                  : écran.findChild<QWidget*>(place);
        ASSERT_NE(conteneur, nullptr);
        EXPECT_TRUE(conteneur->isAncestorOf(champ));
        EXPECT_EQ(champ->toolTip(), r[5]);
        EXPECT_EQ(champ->isEnabled(), r[6] == u"tapée"_s);
        if (!bouton.isEmpty())
            EXPECT_EQ(écran.findChild<QPushButton*>(bouton)->text(), légende);
        if (!légende.isEmpty())
            EXPECT_EQ(QAccessible::queryAccessibleInterface(champ)->text(QAccessible::Name), légende);
        if (longueur == u"plusieurs lignes"_s) {
            auto* zone = qobject_cast<QPlainTextEdit*>(champ);
            ASSERT_NE(zone, nullptr);
            EXPECT_EQ(zone->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        } else {
            auto* ligne = qobject_cast<QLineEdit*>(champ);
            ASSERT_NE(ligne, nullptr);
            EXPECT_EQ(limite_saisie(*ligne), longueur == u"sans limite"_s ? 32767 : longueur.toInt());
        }
        if (ordre_clavier && précédent)
            EXPECT_EQ(précédent->nextInFocusChain(), champ);
        précédent = champ;
    }
}

void jouer_table_des_boutons(QWidget& écran, const QString& nom) {
    for (const QStringList& b : table_de_données(nom)) {
        SCOPED_TRACE(b[0].toStdString());
        auto* bouton = écran.findChild<QPushButton*>(b[0]);
        ASSERT_NE(bouton, nullptr);
        EXPECT_EQ(bouton->text(), b[1]);
        EXPECT_EQ(bouton->toolTip(), b[2]);
    }
}
