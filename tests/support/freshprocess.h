#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <functional>

namespace TestSupport {

/// Runs `work` in a forked copy of this process and gives its text: for code that remembers things per process. Text
/// that begins with "child " is the sentence of a child that failed.
inline QString inFreshProcess(const std::function<QString()>& work) {
  int ends[2];
  if (pipe(ends) != 0) {
    return QStringLiteral("child without a pipe");
  }
  const pid_t child = fork();
  if (child == 0) {
    const QByteArray text = work().toUtf8();
    const bool written = write(ends[1], text.constData(), static_cast<size_t>(text.size())) == text.size();
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  QByteArray text;
  char buffer[4096];
  for (ssize_t got; (got = read(ends[0], buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<int>(got));
  }
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return status == 0 ? QString::fromUtf8(text) : QStringLiteral("child ended with status %1").arg(status);
}

}  // namespace TestSupport
