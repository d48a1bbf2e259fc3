#include "registered_path.h"

#include <QLatin1String>

#include "UIPathManager.h"

QString RegisteredPath(const char* key) {
    return UIPathManager::getInstance()->getPath(QLatin1String(key));
}

std::string RegisteredPathUtf8(const char* key) {
    return RegisteredPath(key).toStdString();
}
