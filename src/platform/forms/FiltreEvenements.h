#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <map>

// Turns focus and double-click events of the controls it watches into their handlers.
class FiltreÉvénements : public QObject {
public:
    enum class Sorte { GotFocus, LostFocus, DblClick };

    explicit FiltreÉvénements(QObject* parent) : QObject(parent) {}

    void attacher(QWidget* contrôle, Sorte sorte, std::function<void()> handler);
    // Drops every handler: the screen is being destroyed, and its controls still send focus events
    // as they go.
    void désarmer();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void surveiller(QWidget* cible, QWidget* contrôle);

    struct Handlers {
        std::function<void()> got_focus, lost_focus, dbl_click;
    };
    std::map<QObject*, Handlers> handlers_; // by control
    std::map<QObject*, QObject*> cibles_;   // watched object (control or its viewport) -> control
};
