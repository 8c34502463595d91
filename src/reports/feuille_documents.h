#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/FieldRows.h"

// The letter templates: one row of `documents` a template, its free text and the five check boxes
// that say which blocks surround the letter.
struct ModèleDeLettre;

class feuille_documents : public FeuilleFiche {
    Q_OBJECT
public:
    feuille_documents();

    // The bound fields, in screen and keyboard order.
    static std::span<const FieldRow<feuille_documents>> champs();

    QLineEdit* intitulé = nullptr;
    QLineEdit* titre = nullptr;
    QLineEdit* destinataire = nullptr;
    QPlainTextEdit* paragraphe1 = nullptr;
    QPlainTextEdit* paragraphe2 = nullptr;
    QPlainTextEdit* paragraphe3 = nullptr;
    QPlainTextEdit* paragraphe4 = nullptr;
    QPlainTextEdit* paragraphe5 = nullptr;
    QPlainTextEdit* paragraphe6 = nullptr;
    QLineEdit* politesse = nullptr;
    QLineEdit* post_scriptum = nullptr;
    QCheckBox* Check1 = nullptr;
    QCheckBox* Check2 = nullptr;
    QCheckBox* Check3 = nullptr;
    QCheckBox* Check4 = nullptr;
    QCheckBox* Check5 = nullptr;
    QPushButton* Command2 = nullptr;

    // "V&oir": the preview of the template with sample values, on the row last written; a failure shows
    // the data error box.
    void Command2_Click();
    // The template as the screen shows it, edits not yet saved included.
    ModèleDeLettre modèle() const;

private:
    void construire();
};
