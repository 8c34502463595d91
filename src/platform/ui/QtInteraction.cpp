#include "platform/ui/QtInteraction.h"

#include <QApplication>
#include <QEventLoop>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <memory>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Bouton {
    const char* texte;
    int réponse;
    QMessageBox::ButtonRole rôle;
};

std::vector<Bouton> boutons_pour(int code) {
    switch (boutons_de(code)) {
    case vbOKCancel:
        return {{"OK", vbOK, QMessageBox::AcceptRole}, {"Annuler", vbCancel, QMessageBox::RejectRole}};
    case vbAbortRetryIgnore:
        return {{"&Abandonner", vbAbort, QMessageBox::RejectRole},
                {"&Réessayer", vbRetry, QMessageBox::AcceptRole},
                {"&Ignorer", vbIgnore, QMessageBox::AcceptRole}};
    case vbYesNoCancel:
        return {{"&Oui", vbYes, QMessageBox::YesRole},
                {"&Non", vbNo, QMessageBox::NoRole},
                {"Annuler", vbCancel, QMessageBox::RejectRole}};
    case vbYesNo:
        return {{"&Oui", vbYes, QMessageBox::YesRole}, {"&Non", vbNo, QMessageBox::NoRole}};
    case vbRetryCancel:
        return {{"&Réessayer", vbRetry, QMessageBox::AcceptRole},
                {"Annuler", vbCancel, QMessageBox::RejectRole}};
    default:
        return {{"OK", vbOK, QMessageBox::AcceptRole}};
    }
}

QMessageBox::Icon icône_qt(int code) {
    switch (icône_de(code)) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// Ends a local event loop when the watched widget is hidden.
class FinSurMasquage : public QObject {
public:
    FinSurMasquage(QWidget& fenêtre, QEventLoop& boucle) : boucle_(boucle) {
        fenêtre.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Hide)
            boucle_.quit();
        return false;
    }

private:
    QEventLoop& boucle_;
};

} // namespace

int QtInteraction::MsgBox(const QString& prompt, int buttons, const QString& title) {
    QMessageBox boîte(icône_qt(buttons), title, prompt, QMessageBox::NoButton, QApplication::activeWindow());
    boîte.setTextFormat(Qt::PlainText); // a path or a name with '<' is shown as typed
    std::vector<std::pair<QPushButton*, int>> réponses;
    for (const Bouton& b : boutons_pour(buttons))
        réponses.emplace_back(boîte.addButton(QString::fromUtf8(b.texte), b.rôle), b.réponse);
    boîte.setDefaultButton(réponses.front().first);
    for (const auto& [bouton, réponse] : réponses)
        if (réponse == vbCancel || réponses.size() == 1)
            boîte.setEscapeButton(bouton);
    // The box waits with the normal pointer whatever the program set, as the user must be able to answer.
    const bool sablier = QApplication::overrideCursor() != nullptr;
    if (sablier)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    boîte.exec();
    if (sablier)
        QApplication::restoreOverrideCursor();
    for (const auto& [bouton, réponse] : réponses)
        if (boîte.clickedButton() == bouton)
            return réponse;
    return boutons_de(buttons) == vbOKOnly ? vbOK : vbCancel;
}

QString QtInteraction::InputBox(const QString& prompt, const QString& title, const QString& defaultValue) {
    QInputDialog boîte(QApplication::activeWindow());
    boîte.setWindowTitle(title);
    boîte.setLabelText(prompt);
    boîte.setTextValue(defaultValue);
    boîte.setOkButtonText(u"OK"_s);
    boîte.setCancelButtonText(u"Annuler"_s);
    for (auto* libellé : boîte.findChildren<QLabel*>())
        libellé->setTextFormat(Qt::PlainText);
    if (boîte.exec() != QDialog::Accepted)
        return QString();
    return boîte.textValue();
}

void QtInteraction::showModal(ModalScreen& screen) {
    QWidget& fenêtre = screen.conteneur();
    QPointer<QWidget> gardée(&fenêtre);
    QEventLoop boucle;
    FinSurMasquage fin(fenêtre, boucle);
    QObject::connect(&fenêtre, &QObject::destroyed, &boucle, &QEventLoop::quit);
    fenêtre.setWindowModality(Qt::ApplicationModal);
    screen.Show();
    if (fenêtre.isVisible())
        boucle.exec();
    if (gardée)
        gardée->setWindowModality(Qt::NonModal);
}

void QtInteraction::setMousePointer(int pointer) {
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    pointeur_ = pointer;
    if (pointer == vbHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else if (pointer == vbArrow)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
}

namespace {

std::shared_ptr<Interaction>& service_en_place() {
    static std::shared_ptr<Interaction> service;
    return service;
}

} // namespace

Interaction& interaction() {
    std::shared_ptr<Interaction>& service = service_en_place();
    if (!service)
        service = std::make_shared<QtInteraction>();
    return *service;
}

void setInteraction(std::shared_ptr<Interaction> interaction) {
    service_en_place() = std::move(interaction);
}
