#include "webhook/process/childprocess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <QFile>
#include <QProcessEnvironment>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

#include "webhook/process/cleanup.h"
#include "webhook/process/processgroup.h"

namespace Corvex::Webhook {

namespace {

/// Everything that the child needs between fork() and exec(), where it may not allocate.
struct Prepared {
  std::vector<std::string> texts;
  std::vector<char*> arguments;
  std::vector<char*> environment;
  std::string program;
  std::string outputFile;
  int outputDescriptor = -1;
  std::vector<std::pair<int, int>> descriptors;
  int errorPipe = -1;
};

Prepared prepare(const ChildCommand& command) {
  Prepared prepared;
  prepared.program = QFile::encodeName(command.program).toStdString();
  prepared.outputFile = QFile::encodeName(command.outputFile).toStdString();
  prepared.outputDescriptor = command.outputDescriptor;
  prepared.descriptors = command.descriptors;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (auto entry = command.environment.begin(); entry != command.environment.end(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  const QStringList variables = environment.toStringList();
  prepared.texts.push_back(prepared.program);
  for (const QString& text : command.arguments + variables) {
    prepared.texts.push_back(text.toLocal8Bit().toStdString());
  }
  const int argumentCount = command.arguments.size() + 1;
  for (int i = 0; i < int(prepared.texts.size()); ++i) {
    (i < argumentCount ? prepared.arguments : prepared.environment).push_back(prepared.texts[size_t(i)].data());
  }
  prepared.arguments.push_back(nullptr);
  prepared.environment.push_back(nullptr);
  return prepared;
}

void redirectStandardStreams(const Prepared& prepared) {
  const int input = open("/dev/null", O_RDONLY);
  const char* outputFile = prepared.outputFile.empty() ? "/dev/null" : prepared.outputFile.c_str();
  const int output = prepared.outputDescriptor >= 0 ? prepared.outputDescriptor
                                                    : open(outputFile, O_WRONLY | O_CREAT | O_APPEND, 0600);
  dup2(input, 0);
  dup2(output, 1);
  dup2(output, 2);
}

void placeDescriptors(Prepared& prepared) {
  constexpr int outOfTheWay = 64;
  prepared.errorPipe = fcntl(prepared.errorPipe, F_DUPFD_CLOEXEC, outOfTheWay);
  for (auto& [own, child] : prepared.descriptors) {
    own = fcntl(own, F_DUPFD_CLOEXEC, outOfTheWay);
  }
  int last = 2;
  for (const auto& [own, child] : prepared.descriptors) {
    dup2(own, child);
    last = std::max(last, child);
  }
#ifdef SYS_close_range
  constexpr unsigned closeOnExec = 1u << 2;
  syscall(SYS_close_range, last + 1, ~0u, closeOnExec);
#endif
}

[[noreturn]] void becomeChild(Prepared& prepared, pid_t parent) {
  setsid();
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) {
    _exit(127);
  }
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  std::signal(SIGPIPE, SIG_DFL);
  redirectStandardStreams(prepared);
  placeDescriptors(prepared);
  execve(prepared.program.c_str(), prepared.arguments.data(), prepared.environment.data());
  const int error = errno;
  if (write(prepared.errorPipe, &error, sizeof error) < 0) {
    _exit(126);
  }
  _exit(127);
}

int openEndDescriptor(pid_t pid) {
#ifdef SYS_pidfd_open
  return int(syscall(SYS_pidfd_open, pid, 0));
#else
  Q_UNUSED(pid)
  return -1;
#endif
}

QString markOf(const ChildCommand& command) {
  return command.markName + QLatin1Char('=') + command.environment.value(command.markName);
}

}  // namespace

ChildProcess::Start ChildProcess::start(const ChildCommand& command) {
  const auto failure = [&command](int error) {
    return Start{nullptr, QStringLiteral("The program '%1' could not be started: %2.")
                              .arg(command.program, QString::fromLocal8Bit(std::strerror(error)))};
  };
  int pipeEnds[2];
  if (pipe2(pipeEnds, O_CLOEXEC) != 0) {
    return failure(errno);
  }
  const FileDescriptor errorReader(pipeEnds[0]);
  FileDescriptor errorWriter(pipeEnds[1]);
  Prepared prepared = prepare(command);
  prepared.errorPipe = errorWriter.get();

  adoptOrphans();
  const pid_t parent = getpid();
  const pid_t pid =
      Cleanup::noteProcessGroup({markOf(command).toLocal8Bit().toStdString(), command.cleansUp}, [&]() -> pid_t {
        const pid_t forked = fork();
        if (forked == 0) {
          becomeChild(prepared, parent);
        }
        return forked;
      });
  if (pid < 0) {
    return failure(errno);
  }
  errorWriter.close();
  std::unique_ptr<ChildProcess> process(new ChildProcess(pid));
  int error = 0;
  if (read(errorReader.get(), &error, sizeof error) == ssize_t(sizeof error)) {
    return failure(error);
  }
  return {std::move(process), {}};
}

ChildProcess::ChildProcess(pid_t pid) : m_pid(pid), m_endDescriptor(openEndDescriptor(pid)) {
  if (!m_endDescriptor.isValid()) {
    return;
  }
  m_endNotifier = std::make_unique<QSocketNotifier>(m_endDescriptor.get(), QSocketNotifier::Read);
  connect(m_endNotifier.get(), &QSocketNotifier::activated, this, [this] {
    m_endNotifier->setEnabled(false);
    Q_EMIT ended();
  });
}

ChildProcess::~ChildProcess() {
  end();
  if (!m_endNotifier) {
    return;
  }
  m_endNotifier->setEnabled(false);
  m_endNotifier.release()->deleteLater();  // this may run inside its own signal
}

std::optional<ChildEnd> ChildProcess::howEnded() const {
  siginfo_t info = {};
  // Whoever ends the process for good has it.
  if (waitid(P_PID, id_t(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) != 0 || info.si_pid == 0) {
    return std::nullopt;
  }
  return info.si_code == CLD_EXITED ? ChildEnd{info.si_status, 0} : ChildEnd{std::nullopt, info.si_status};
}

QString ChildEnd::text() const {
  return exitCode
             ? QStringLiteral("ended with exit code %1").arg(*exitCode)
             : QStringLiteral("was ended by signal %1 (%2)").arg(signal).arg(QString::fromLocal8Bit(strsignal(signal)));
}

void ChildProcess::end() {
  if (m_endNotifier) {
    m_endNotifier->setEnabled(false);
  }
  Cleanup::endProcessGroup(m_pid);
}

}  // namespace Corvex::Webhook
