#include "platform/files/NativePaths.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString proposedPath(const QString& windowsPath) {
#ifdef Q_OS_WIN
    return windowsPath;
#else
    QString path = windowsPath;
    if (path.size() >= 3 && path[0].isLetter() && path[1] == u':' && path[2] == u'\\')
        path = QDir::homePath() + u'/' + path.mid(3);
    return path.replace(u'\\', u'/');
#endif
}

QString withFinalSeparator(const QString& folder) {
    if (folder.endsWith(QDir::separator()) || folder.endsWith(u'/'))
        return folder;
    return folder + QDir::separator();
}
