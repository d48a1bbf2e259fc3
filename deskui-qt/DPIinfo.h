#pragma once

#include <QString>

#include "deskui_export.h"

/// Tells how much larger than designed the user interface is to be drawn. Used on the main thread
/// only.
class DESKUI_EXPORT DPIinfo {
public:
    /// The service of this process. It is made on first use, is never null, and is not the caller's
    /// to delete.
    static DPIinfo* getInstance();

    DPIinfo(const DPIinfo&) = delete;
    DPIinfo& operator=(const DPIinfo&) = delete;

    /// The display scale: a factor, 1.0 for the design size, and not dots per inch.
    ///
    /// It is that of the primary screen at the time of the call, or 1.0 when there is no screen or
    /// no application object yet. What Qt itself scales, as Qt 6 does with every window, is not part
    /// of it.
    double getDPI() const;

    /// `scaleStyleSheet` at the display scale.
    QString getScaledStyleSheet(QString sheet) const;

    /// A logical resolution over the one that windows are designed for, both in dots per inch, to
    /// the nearest quarter and never below 1.0: a monitor that is slightly off does not blur the
    /// window, and none shrinks it.
    static double scaleForResolution(double logical_dpi, double design_dpi);

    /// The style sheet with its lengths in px multiplied by `factor`, and all else as it was.
    ///
    /// A length is a number with an optional sign and fraction and with "px", in any case, directly
    /// behind it, that is not a part of a longer name or number: "10px", "1.5px" and "-2px" are
    /// lengths; "#10px", "w10px" and "10pxx" are not. Nothing is changed within quotes, within
    /// url(...) and within comments. A scaled length is rounded to a whole pixel, halves away from
    /// zero, for Qt draws no fractions. At a factor of 1.0 the sheet comes back as it is.
    static QString scaleStyleSheet(QString sheet, double factor);

private:
    DPIinfo() = default;
    ~DPIinfo() = default;
};
