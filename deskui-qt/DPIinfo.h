#pragma once

#include <QString>

#include "deskui_export.h"

/// Finds the scale of the display, and scales style sheets by it. Main thread only.
class DESKUI_EXPORT DPIinfo {
public:
    /// Returns the only instance, which is made on first use. The caller does not own it.
    static DPIinfo* getInstance();

    DPIinfo(const DPIinfo&) = delete;
    DPIinfo& operator=(const DPIinfo&) = delete;

    /// Returns the scale of the primary screen: a factor, not dots per inch. It is 1.0 for the size
    /// for which windows are designed, and also without a screen or an application object.
    ///
    /// The scaling that Qt does itself is not included. Qt 6 does so for every window.
    double getDPI() const;

    /// Returns the style sheet scaled by `getDPI`; see `scaleStyleSheet`.
    QString getScaledStyleSheet(QString sheet) const;

    /// Divides a logical resolution by the resolution for which windows are designed, both in dots
    /// per inch. Returns the result rounded to a multiple of 0.25, but at least 1.0.
    ///
    /// The rounding keeps the window sharp on a monitor whose resolution differs only slightly.
    static double scaleForResolution(double logical_dpi, double design_dpi);

    /// Returns the style sheet with all lengths in px multiplied by `factor`. The rest is
    /// unchanged.
    ///
    /// A length is a number, with an optional sign and fraction, directly before "px" in upper or
    /// lower case. It must not be part of a longer name or number: "10px", "1.5px" and "-2px" are
    /// lengths, and "#10px", "w10px" and "10pxx" are not. Texts in quotes, url(...) and comments
    /// are not changed.
    ///
    /// A scaled length is rounded to a whole pixel, halves away from zero, because Qt draws no
    /// fractions of a pixel. With a factor of 1.0, lengths with a fraction stay as they are, too.
    static QString scaleStyleSheet(QString sheet, double factor);

private:
    DPIinfo() = default;
    ~DPIinfo() = default;
};
