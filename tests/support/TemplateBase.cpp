#include "support/TemplateBase.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

QString template_path() {
    return QStringLiteral(NORVANE_TEMPLATE_PATH);
}

TemplateBase::TemplateBase(const QString& name) : dir_(QDir::tempPath() + u"/norvane-base-XXXXXX"_s) {
    path_ = copy(name);
}

QString TemplateBase::copy(const QString& name) const {
    const QString target = dir_.filePath(name);
    if (!QFile::copy(template_path(), target))
        ADD_FAILURE() << "Impossible de copier le modèle " << template_path().toStdString();
    QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    return target;
}
