#pragma once

#include "platform/forms/Feuille.h"

class QLabel;
class QPushButton;
class QTabWidget;

// "À propos du logiciel : " and the title: the name, the version, what the program is, the engines
// it runs on, and the system information tool where the system has one.
class feuille_copyright : public Feuille {
public:
    feuille_copyright();

    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblMoteurDonnées = nullptr;
    QLabel* lblMoteurÉtats = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QLabel* Image1 = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdSysInfo = nullptr;

    void Form_Load() override;
    // Hides the picture, then the box; it stays loaded, the picture hidden.
    void cmdOK_Click();
    void cmdSysInfo_Click();
};

// The system information tool: started when the system has one, otherwise a plain box says it
// cannot be.
void StartSysInfo();
