#include "store/mise_en_page.h"

#include <QLabel>

QLabel* légende_de_liste(const char* texte, QWidget* parent) {
    auto* légende = new QLabel(QString::fromUtf8(texte), parent);
    QFont police = légende->font();
    police.setBold(true);
    légende->setFont(police);
    return légende;
}
