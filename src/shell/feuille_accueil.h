#pragma once

#include "platform/forms/Feuille.h"

class FileListBox;
class QFrame;
class QLabel;
class QTimer;

// The splash. It waits, blinking its prompt, until the user clicks one of its pictures or texts or
// presses a key; then the main window comes up.
class feuille_accueil : public Feuille {
    Q_OBJECT
public:
    feuille_accueil();

    QFrame* Frame1 = nullptr;
    QLabel* Image1 = nullptr;
    QLabel* Image2 = nullptr;
    QLabel* lblProductName = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblPlatform = nullptr;
    QLabel* lblCompany = nullptr;
    QLabel* lblWarning = nullptr;
    QLabel* Label1 = nullptr;
    FileListBox* File1 = nullptr; // never given a path: it reads the folder current at start
    QTimer* Timer1 = nullptr;

    void Form_Load() override;
    void Form_Unload(int& cancel) override;
    void Form_KeyPress();
    void Timer1_Timer();
    // The Click of Frame1, Image1, Image2, Label1 and the five lbl labels: all the same.
    void Click();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* objet, QEvent* event) override;

private:
    void construire();
    bool partir();

    bool parti_ = false;
};
