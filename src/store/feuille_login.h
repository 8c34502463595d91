#pragma once

#include "platform/forms/Feuille.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

// The access code box: modal, outside the main window, without a caption. It only passes the typed
// code to the chooser; ouvrir_base_choisie gives the verdict.
class feuille_login : public Feuille {
    Q_OBJECT
public:
    feuille_login();

    QLabel* lblLabels[2] = {nullptr, nullptr};
    QLineEdit* accès_tentavive = nullptr;
    QLabel* Image1 = nullptr;
    QLabel* Image2 = nullptr;
    QTimer* Timer1 = nullptr;
    QPushButton* cmdMettreàjour = nullptr;
    QPushButton* cmdFermer = nullptr;

    void Form_Load() override;
    void Timer1_Timer();
    void cmdMettreàjour_Click();
    void cmdFermer_Click();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
