#include "UIPathManager.h"

UIPathManager* UIPathManager::getInstance() {
    static UIPathManager instance;
    return &instance;
}

void UIPathManager::setPath(const QString& key, const QString& path) {
    paths_.insert(key, path);
}

QString UIPathManager::getPath(const QString& key) const {
    return paths_.value(key);
}
