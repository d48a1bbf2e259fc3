#include "DPIinfo.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <cmath>
#include <utility>

#include "lib/platform/platform.h"

namespace {

// Returns a pattern for lengths in px, which captures their numbers. It also matches comments,
// quoted texts and url(...) as a whole, without a capture, so that no length is found in them.
const QRegularExpression& StyleToken() {
    static const QRegularExpression token(
        QStringLiteral(R"(/\*.*?\*/)"
                       R"(|"[^"\\]*(?:\\.[^"\\]*)*")"
                       R"(|'[^'\\]*(?:\\.[^'\\]*)*')"
                       R"(|\burl\([^)]*\))"
                       R"(|(?<![\w#.\\+-])([+-]?(?:[0-9]*\.)?[0-9]+)px(?![\w\\-]))"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption |
            QRegularExpression::UseUnicodePropertiesOption);
    return token;
}

}  // namespace

DPIinfo* DPIinfo::getInstance() {
    static DPIinfo instance;
    return &instance;
}

double DPIinfo::getDPI() const {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen == nullptr
               ? 1.0
               : scaleForResolution(screen->logicalDotsPerInch(), PlatformDesignDpi());
}

QString DPIinfo::getScaledStyleSheet(QString sheet) const {
    return scaleStyleSheet(std::move(sheet), getDPI());
}

double DPIinfo::scaleForResolution(double logical_dpi, double design_dpi) {
    constexpr double kStepsPerUnit = 4.0;
    // If the resolution is not a number, fmax returns 1.0; std::max might return the NaN.
    return std::fmax(1.0, std::round(logical_dpi / design_dpi * kStepsPerUnit) / kStepsPerUnit);
}

QString DPIinfo::scaleStyleSheet(QString sheet, double factor) {
    if (factor == 1.0) {
        return sheet;
    }
    QString scaled;
    decltype(sheet.size()) copied = 0;  // The type is int in Qt 5, and qsizetype in Qt 6.
    auto tokens = StyleToken().globalMatch(sheet);
    while (tokens.hasNext()) {
        const QRegularExpressionMatch token = tokens.next();
        if (token.lastCapturedIndex() < 1) {
            continue;
        }
        const double length = std::round(token.captured(1).toDouble() * factor);
        scaled += sheet.mid(copied, token.capturedStart(1) - copied);
        scaled += QString::number(length, 'f', 0);
        copied = token.capturedEnd(1);
    }
    return scaled + sheet.mid(copied);
}
