#pragma once

#include "platform/errors/VbError.h"
#include "support/ScriptedInteraction.h"

#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>

// A test's texts, written as UTF-8 literals, and shown as text when an assertion fails.
inline QString u(const char* utf8) {
    return QString::fromUtf8(utf8);
}
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

// For its lifetime: the program in its start state, with the scripted user in place of the dialogs.
// At its end the state is reset again, screens included, and unused answers fail the test.
class ScriptedSession {
public:
    ScriptedSession();
    ~ScriptedSession();
    ScriptedSession(const ScriptedSession&) = delete;
    ScriptedSession& operator=(const ScriptedSession&) = delete;

    ScriptedInteraction& ui() { return *ui_; }

private:
    std::shared_ptr<ScriptedInteraction> ui_;
};

// The number of the VbError that `action` raises, or 0 when it succeeds.
int error_of(const std::function<void()>& action);
// The VbError that `action` raises, or one numbered 0 when it succeeds.
VbError raised_by(const std::function<void()>& action);

// Whether the program showed exactly one box so far and its text begins with `début` (an error box
// whose description names a file, say).
::testing::AssertionResult une_boîte(const ScriptedInteraction& ui, const QString& début);

// A file's bytes, or "<absent>" when it cannot be read.
QByteArray contentOf(const QString& path);

// Runs the deferred destruction of unloaded screens.
void processDeletions();

// A test fixture holding a ScriptedSession from SetUp to TearDown.
class ScriptedTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    ScriptedInteraction& ui() { return session_->ui(); }
    static void processDeletions() { ::processDeletions(); }

private:
    std::unique_ptr<ScriptedSession> session_;
};

// A fresh empty work folder, removed with everything in it at the end of the test.
class WorkFolder {
public:
    WorkFolder();
    QString path() const { return dir_.path(); }
    QString file(const QString& name) const { return dir_.filePath(name); }
    // Writes a file in the folder and returns its path.
    QString write(const QString& name, const QByteArray& content) const;

private:
    QTemporaryDir dir_;
};

// Both: the scripted program in a temporary folder which is also chemin_application.
class WorkFolderTest : public ScriptedTest {
protected:
    void SetUp() override;
    WorkFolder folder;
};
