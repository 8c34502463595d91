#pragma once

#include "platform/ui/Interaction.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

class FiltreÉvénements;

// A screen: a widget with its controls as members and its handlers as methods. Screens are created,
// loaded and unloaded by the screen registry (feuilles()), never by hand.
// moc cannot read accented class names: a screen such as feuille_élève carries no Q_OBJECT, its
// handlers are connected through relier (platform/ui/Relier.h) with lambdas or member pointers, and it
// is cast with dynamic_cast.
class Feuille : public QWidget, public ModalScreen {
    Q_OBJECT
public:
    // A child screen lives in the main window's area; a top-level one (splash, login) stands alone.
    enum class Genre { enfant, haut_niveau };

    explicit Feuille(const QString& nom, Genre genre = Genre::enfant);
    ~Feuille() override;

    Genre genre() const { return genre_; }
    bool estHautNiveau() const { return genre_ == Genre::haut_niveau; }

    // The window that carries the screen: its sub-window in the main window's area, or itself.
    QWidget& conteneur() override;
    const QWidget& conteneur() const;

    // Shows the screen and brings it to the front.
    void Show() override;
    // Hides it, still loaded.
    void Hide();
    // Brings it to the front.
    void ZOrder();
    // Unloads it through the registry: true when it went, false when a handler cancelled.
    bool Unload();

    // Events of the screen's life, run by the registry.
    virtual void Form_Load() {}
    virtual void Form_QueryUnload(int& cancel) {}
    virtual void Form_Unload(int& cancel) {}

    // Work that must be done before the screen goes, such as a data source writing its edited row.
    // Runs in the order of registration, after Form_QueryUnload and before Form_Unload.
    void avantDéchargement(std::function<void()> tâche);
    void exécuterAvantDéchargement();

    // GotFocus, LostFocus and DblClick handlers for any child control, through one event filter.
    void surGotFocus(QWidget* contrôle, std::function<void()> handler);
    void surLostFocus(QWidget* contrôle, std::function<void()> handler);
    void surDblClick(QWidget* contrôle, std::function<void()> handler);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Feuilles;
    void placerDans(QWidget* sous_fenêtre) { sous_fenêtre_ = sous_fenêtre; }
    FiltreÉvénements& filtre();

    Genre genre_;
    QPointer<QWidget> sous_fenêtre_;
    FiltreÉvénements* filtre_ = nullptr; // child QObject, owned by this screen
    std::vector<std::function<void()>> avant_déchargement_;
};
