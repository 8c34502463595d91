#pragma once

#include "platform/ui/Interaction.h"

// The real dialogs, for the running program.
class QtInteraction final : public Interaction {
public:
    int MsgBox(const QString& prompt, int buttons = vbOKOnly,
               const QString& title = QString::fromUtf8(titre_programme)) override;
    QString InputBox(const QString& prompt, const QString& title = QString::fromUtf8(titre_programme),
                     const QString& defaultValue = QString()) override;
    void showModal(ModalScreen& screen) override;
    void setMousePointer(int pointer) override;
    int mousePointer() const override { return pointeur_; }

private:
    int pointeur_ = vbDefault;
};
