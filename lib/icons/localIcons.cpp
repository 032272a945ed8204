#include "icons/localIcons.h"

#include <QtGlobal>

// Resources of a library that is linked in statically register themselves only when asked to.
static void registerPictures() {
    Q_INIT_RESOURCE(icons);
}

QString localIconPath(const QString& fileName) {
    [[maybe_unused]] static const bool registered = [] {
        registerPictures();
        return true;
    }();
    return QStringLiteral(":/icons/") + fileName;
}
