#include "support/Fixtures.h"

#include "platform/errors/VbError.h"
#include "shell/ecrans_connus.h"
#include "store/Module1.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>

using namespace Qt::StringLiterals;

ScriptedSession::ScriptedSession() : ui_(std::make_shared<ScriptedInteraction>()) {
    module1().réinitialiser();
    processDeletions();
    module1().setInteraction(ui_);
    faire_connaître_les_écrans();
}

ScriptedSession::~ScriptedSession() {
    module1().réinitialiser(); // the last owner of the scripted user is now ui_, which reports unused answers
    processDeletions();
}

VbError raised_by(const std::function<void()>& action) {
    try {
        action();
    } catch (const VbError& e) {
        return e;
    }
    return VbError(0, QString());
}

int error_of(const std::function<void()>& action) {
    return raised_by(action).number();
}

::testing::AssertionResult une_boîte(const ScriptedInteraction& ui, const QString& début) {
    if (ui.boxes().size() != 1)
        return ::testing::AssertionFailure() << ui.boxes().size() << " boîte(s) au lieu d'une";
    if (!ui.boxes().front().text.startsWith(début))
        return ::testing::AssertionFailure() << "« " << ui.boxes().front().text.toStdString() << " »";
    return ::testing::AssertionSuccess();
}

QByteArray contentOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<absent>");
}

void processDeletions() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ScriptedTest::SetUp() {
    session_ = std::make_unique<ScriptedSession>();
}

void ScriptedTest::TearDown() {
    session_.reset();
}

WorkFolder::WorkFolder() : dir_(QDir::tempPath() + u"/norvane-XXXXXX"_s) {
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
