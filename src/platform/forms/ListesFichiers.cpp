#include "platform/forms/ListesFichiers.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

namespace {

QIcon icône(QStyle::StandardPixmap quelle) {
    return QApplication::style()->standardIcon(quelle);
}

QString chemin_propre(const QString& chemin) {
    return QDir::cleanPath(QFileInfo(chemin).absoluteFilePath());
}

constexpr int rôle_niveau = Qt::UserRole + 1;

// A folder stands a step to the right of its parent, picture and name together: an indent made of
// spaces in the name would leave every picture at the left edge, away from its name.
class RetraitParNiveau : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem décalée(option);
        décalée.rect.setLeft(décalée.rect.left() + retrait(option, index));
        QStyledItemDelegate::paint(peintre, décalée, index);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(retrait(option, index), 0);
    }

private:
    static int retrait(const QStyleOptionViewItem& option, const QModelIndex& index) {
        return index.data(rôle_niveau).toInt() * (option.decorationSize.width() / 2 + 4);
    }
};

} // namespace

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent) {
    remplir();
    setCurrentIndex(
        std::max(0, findText(QDir::toNativeSeparators(QDir::current().rootPath()), Qt::MatchFixedString)));
    lecteur_ = currentIndex();
    // Picking the drive that is already the current one is no change.
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (index == lecteur_)
            return;
        lecteur_ = index;
        emit Change();
    });
}

void DriveListBox::remplir() {
    for (const QFileInfo& racine : QDir::drives())
        addItem(icône(QStyle::SP_DriveHDIcon), QDir::toNativeSeparators(racine.absolutePath()));
}

QString DriveListBox::Drive() const {
    return currentText();
}

void DriveListBox::setDrive(const QString& lecteur) {
    const QString racine = QDir::toNativeSeparators(QFileInfo(lecteur).absoluteDir().rootPath());
    int index = findText(racine, Qt::MatchFixedString);
    if (index < 0) {
        addItem(icône(QStyle::SP_DriveHDIcon), racine);
        index = count() - 1;
    }
    if (index == lecteur_)
        return;
    setCurrentIndex(index);
    lecteur_ = index;
    emit Change();
}

DirListBox::DirListBox(QWidget* parent) : QListWidget(parent), chemin_(chemin_propre(QDir::currentPath())) {
    setItemDelegate(new RetraitParNiveau(this));
    remplir();
    connect(this, &QListWidget::itemActivated, this, &DirListBox::entrer);
}

void DirListBox::setPath(const QString& chemin) {
    const QString nouveau = chemin_propre(chemin);
    if (nouveau == chemin_)
        return;
    chemin_ = nouveau;
    remplir();
    emit Change();
}

QString DirListBox::Path() const {
    return QDir::toNativeSeparators(chemin_);
}

void DirListBox::Refresh() {
    remplir();
}

void DirListBox::remplir() {
    clear();
    QStringList chaîne;
    for (QDir d(chemin_);;) {
        chaîne.prepend(d.absolutePath());
        if (d.isRoot() || !d.cdUp())
            break;
    }
    int niveau = 0;
    for (const QString& dossier : chaîne) {
        const QString nom =
            QDir(dossier).isRoot() ? QDir::toNativeSeparators(dossier) : QDir(dossier).dirName();
        auto* entrée = new QListWidgetItem(icône(QStyle::SP_DirOpenIcon), nom, this);
        entrée->setData(Qt::UserRole, dossier);
        entrée->setData(rôle_niveau, niveau++);
    }
    setCurrentRow(count() - 1);
    const QFileInfoList sous = QDir(chemin_).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot,
                                                           QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (const QFileInfo& dossier : sous) {
        auto* entrée = new QListWidgetItem(icône(QStyle::SP_DirIcon), dossier.fileName(), this);
        entrée->setData(Qt::UserRole, dossier.absoluteFilePath());
        entrée->setData(rôle_niveau, niveau);
    }
}

void DirListBox::entrer(QListWidgetItem* entrée) {
    if (entrée != nullptr)
        setPath(entrée->data(Qt::UserRole).toString());
}

FileListBox::FileListBox(QWidget* parent) : QListWidget(parent), chemin_(chemin_propre(QDir::currentPath())) {
    Refresh();
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemClicked, this, [this] { emit Click(); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { emit DblClick(); });
}

void FileListBox::setPath(const QString& chemin) {
    chemin_ = chemin_propre(chemin);
    Refresh();
}

QString FileListBox::Path() const {
    return QDir::toNativeSeparators(chemin_);
}

void FileListBox::setPattern(const QString& motif) {
    motif_ = motif;
    Refresh();
}

QString FileListBox::FileName() const {
    const QListWidgetItem* entrée = currentItem();
    return entrée != nullptr && entrée->isSelected() ? entrée->text() : QString();
}

void FileListBox::Refresh() {
    clear();
    if (chemin_.isEmpty())
        return;
    // "*.jpg ; *.gif ; *.bmp": each pattern without its blanks, matched whatever the case.
    QStringList motifs;
    for (const QString& motif : motif_.split(u';', Qt::SkipEmptyParts))
        motifs << motif.trimmed();
    const QFileInfoList fichiers =
        QDir(chemin_).entryInfoList(motifs, QDir::Files, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (const QFileInfo& fichier : fichiers)
        new QListWidgetItem(icône(QStyle::SP_FileIcon), fichier.fileName(), this);
}

void FileListBox::keyPressEvent(QKeyEvent* event) {
    const QListWidgetItem* avant = currentItem();
    const bool choisi_avant = avant != nullptr && avant->isSelected();
    QListWidget::keyPressEvent(event);
    const QListWidgetItem* après = currentItem();
    if (après != nullptr && après->isSelected() && (après != avant || !choisi_avant))
        emit Click();
}

bool FileListBox::cliquer(const QString& nom) {
    const QList<QListWidgetItem*> trouvées = findItems(nom, Qt::MatchExactly);
    if (trouvées.isEmpty())
        return false;
    setCurrentItem(trouvées.first());
    trouvées.first()->setSelected(true);
    emit Click();
    return true;
}
