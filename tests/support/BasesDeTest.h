#pragma once

#include <QString>
#include <optional>

// A small work database for the opening tests: the table of the access code, and whatever `en_plus`
// creates. `code` empty gives a row with an empty code; no value gives an empty table.
QString créer_base_de_test(const QString& chemin, const std::optional<QString>& code = QString(),
                           const QString& en_plus = QString());

// Makes a folder the process's current one for as long as the object lives.
class DossierCourant {
public:
    explicit DossierCourant(const QString& dossier);
    ~DossierCourant();
    DossierCourant(const DossierCourant&) = delete;
    DossierCourant& operator=(const DossierCourant&) = delete;

private:
    QString ancien_;
};
