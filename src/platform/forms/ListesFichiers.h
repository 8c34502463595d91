#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QString>

// The three list controls of the classic file pickers: drives, folders, files. Like their models,
// they begin on the process's current folder, so a screen that never sets Path reads that folder.

// Drive list: the file-system roots. Change fires when the user picks another one, or when code
// sets Drive to another value; picking the current one again is no change.
class DriveListBox : public QComboBox {
    Q_OBJECT
public:
    explicit DriveListBox(QWidget* parent = nullptr);

    QString Drive() const;
    void setDrive(const QString& lecteur);

signals:
    void Change();

private:
    void remplir();

    int lecteur_ = -1; // the index of the drive last taken
};

// Folder list: the chain of folders from the root down to Path, then the folders inside Path.
// Activating an entry (double click or Enter) moves there; Change fires whenever Path changes.
class DirListBox : public QListWidget {
    Q_OBJECT
public:
    explicit DirListBox(QWidget* parent = nullptr);

    QString Path() const;
    void setPath(const QString& chemin);
    void Refresh();

signals:
    void Change();

private:
    void remplir();
    void entrer(QListWidgetItem* entrée);

    QString chemin_;
};

// File list: the plain files of Path that match Pattern, in name order. Click (a click, or the
// selection moved by the keyboard) and DblClick come from the user; FileName is the selected file's
// name, or empty.
class FileListBox : public QListWidget {
    Q_OBJECT
public:
    explicit FileListBox(QWidget* parent = nullptr);

    QString Path() const; // with the system's own separators
    void setPath(const QString& chemin);
    QString Pattern() const { return motif_; }
    void setPattern(const QString& motif);
    QString FileName() const;
    void Refresh();

    // What a user's click does: select the named file and fire Click. False when it is not listed.
    bool cliquer(const QString& nom);

signals:
    void Click();
    void DblClick();

protected:
    // Moving the selection with the keyboard is a click as well, as in the classic list.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString chemin_;
    QString motif_ = QStringLiteral("*.*");
};
