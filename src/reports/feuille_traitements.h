#pragma once

#include "platform/forms/Feuille.h"

#include <array>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class ReportJob;

// "Exploitation de la base": the statistics, lists, labels and sheets of the catalogue, restricted by
// cycle, level and class, sent to the screen, the printer or a rich-text file. Loaded once, hidden by
// its close button: what the user typed and chose stays for the next time, and for the spreadsheet
// export, which reads its fields too. No Q_OBJECT: moc cannot read its accented members.
class feuille_traitements : public Feuille {
public:
    feuille_traitements();

    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    QGroupBox* Frame3 = nullptr;
    QGroupBox* Frame4 = nullptr;
    QGroupBox* Frame5 = nullptr;
    QLineEdit* Text1 = nullptr;             // cycle
    QLineEdit* Text2 = nullptr;             // level
    QLineEdit* Text3 = nullptr;             // class
    std::array<QRadioButton*, 3> Option1{}; // screen, printer, file
    QLineEdit* Text4 = nullptr;             // copies
    QScrollBar* HScroll1 = nullptr;
    std::array<QLabel*, 4> légendes{};
    QComboBox* Combo1 = nullptr; // Statistiques
    QComboBox* Combo2 = nullptr; // Listes
    QComboBox* Combo3 = nullptr; // Etiquettes
    QComboBox* Combo4 = nullptr; // Documents
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QPushButton* cmdFermer = nullptr;

    void Form_Load() override;
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void cmdFermer_Click();
    void HScroll1_Change();

private:
    void construire();
    // The four OK buttons are one algorithm over their list.
    void lancer_la_liste(int liste, QComboBox* combo);
    // Destination, copies and file of the run from the options, the first one ticked deciding.
    void bloc_de_sortie(ReportJob& job);
};
