#pragma once

#include "support/ScriptedInteraction.h"

#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

// Runs a test with the program in its start state and the scripted user in place of the dialogs; the
// state is reset again afterwards, screens included.
class ScriptedTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    ScriptedInteraction& ui() { return *ui_; }
    // Runs the deferred destruction of unloaded screens.
    static void processDeletions();

private:
    std::shared_ptr<ScriptedInteraction> ui_;
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
