#pragma once

#include <QString>
#include <QTemporaryDir>

// The template basevide.mdz that this build generated.
QString template_path();

// A fresh copy of the template, as a .mdb in a temporary folder removed at the end of the test.
class TemplateBase {
public:
    explicit TemplateBase(const QString& name = QStringLiteral("base.mdb"));
    const QString& path() const { return path_; }
    QString folder() const { return dir_.path(); }
    QString file(const QString& name) const { return dir_.filePath(name); }
    // Another copy of the template in the same folder.
    QString copy(const QString& name) const;

private:
    QTemporaryDir dir_;
    QString path_;
};
