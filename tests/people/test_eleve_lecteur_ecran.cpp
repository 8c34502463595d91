// What a screen reader says of the pupil screen's fields: each one's caption, read from its label or
// from the button that carries it.
#include "support/BaseEleves.h"

#include "people/feuille_eleve.h"

#include <QAccessible>
#include <gtest/gtest.h>

namespace {

class LecteurDEcran : public ÉcranÉlèveTest {};

TEST_F(LecteurDEcran, EveryFieldIsNamedByItsCaption) {
    feuille_élève& f = ouvrir();
    for (const auto& ligne : feuille_élève::champs()) {
        if (ligne.hidden)
            continue;
        SCOPED_TRACE(ligne.name);
        auto* champ = f.findChild<QWidget*>(u(ligne.name));
        ASSERT_NE(champ, nullptr);
        QAccessibleInterface* vue = QAccessible::queryAccessibleInterface(champ);
        ASSERT_NE(vue, nullptr);
        EXPECT_EQ(vue->text(QAccessible::Name), u(ligne.caption));
    }
}

} // namespace
