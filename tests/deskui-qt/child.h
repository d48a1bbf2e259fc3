#pragma once

#include <QProcess>
#include <QStringList>
#include <string>

/// The test program once more, as a child process that makes the single-instance application.
///
/// It prints "running" or "alone" as one line, the default language and the display scale as
/// another. It ends together with its standard input, but at a byte from there it becomes the
/// program `cat`.
class Child : public QProcess {
public:
    /// Starts it on the offscreen platform. Its environment holds nothing else but the home folder,
    /// the variables ("NAME=value") and the settings of sanitizers.
    explicit Child(const std::string& home, const QStringList& variables = {});

    /// Lets it end, and expects that it succeeds unless the test has killed it.
    ~Child() override;

    /// The next line that it prints; an empty text when it prints none.
    std::string ReadLine();
};
