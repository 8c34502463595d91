#include "support/Fixtures.h"

#include "platform/forms/Module1.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>

void ScriptedTest::SetUp() {
    module1().réinitialiser();
    ui_ = std::make_shared<ScriptedInteraction>();
    module1().setInteraction(ui_);
}

void ScriptedTest::TearDown() {
    module1().réinitialiser();
    processDeletions();
    ui_.reset(); // reports answers left unused
}

void ScriptedTest::processDeletions() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

WorkFolder::WorkFolder() : dir_(QDir::tempPath() + QStringLiteral("/norvane-XXXXXX")) {
    if (!dir_.isValid())
        ADD_FAILURE() << "Impossible de créer un dossier de travail temporaire";
}

QString WorkFolder::write(const QString& name, const QByteArray& content) const {
    const QString path = file(name);
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(content) != content.size())
        ADD_FAILURE() << "Impossible d'écrire " << path.toStdString();
    return path;
}

void WorkFolderTest::SetUp() {
    ScriptedTest::SetUp();
    module1().chemin_application = folder.path() + QDir::separator();
}
