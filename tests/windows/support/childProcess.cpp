#include "childProcess.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Where the child tells.
constexpr int tellingDescriptor = 3;

}  // namespace

childProcess::childProcess(const QStringList& arguments, Run run) {
    std::vector<QByteArray> words{QFile::encodeName(QCoreApplication::applicationFilePath())};
    for (const QString& argument : arguments) {
        words.push_back(argument.toUtf8());
    }
    std::vector<char*> pointers;
    for (QByteArray& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    int pipe[2];
    if (pipe2(pipe, O_CLOEXEC) != 0) {
        qFatal("no pipe");
    }
    id_ = fork();
    if (id_ == 0) {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDOUT_FILENO);
        // Not when the end of the pipe has that number already: it would be closed with the
        // program.
        const int telling = pipe[1] == tellingDescriptor ? dup(pipe[1]) : pipe[1];
        dup2(telling, tellingDescriptor);
        if (run == Run::stopAtSystemCalls) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        }
        execv(pointers[0], pointers.data());
        _exit(127);
    }
    close(pipe[1]);
    letters_ = pipe[0];
    if (id_ < 0) {
        qFatal("no process");
    }
    if (run == Run::stopAtSystemCalls && wait()) {
        ptrace(PTRACE_SETOPTIONS, id_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    }
}

childProcess::~childProcess() {
    kill();
    close(letters_);
}

void childProcess::tell(char letter) {
    if (write(tellingDescriptor, &letter, 1) != 1) {
        std::abort();
    }
}

const QByteArray& childProcess::told() {
    while (takeLetters(false)) {}
    return told_;
}

bool childProcess::waitFor(qsizetype letters) {
    while (told().size() < letters) {
        if (!takeLetters(true)) {
            return false;
        }
    }
    return true;
}

bool childProcess::takeLetters(bool patiently) {
    pollfd waiting{letters_, POLLIN, 0};
    if (poll(&waiting, 1, patiently ? -1 : 0) <= 0) {
        return false;
    }
    char bytes[512];
    const ssize_t count = read(letters_, bytes, sizeof bytes);
    if (count > 0) {
        told_.append(bytes, static_cast<qsizetype>(count));
    }
    return count > 0;
}

bool childProcess::nextSystemCall() {
    constexpr int systemCall = SIGTRAP | 0x80;
    // One stop before the call and one behind it.
    for (int stops = 0; stops < 2;) {
        const int signal =
            WSTOPSIG(status_) == SIGTRAP || WSTOPSIG(status_) == systemCall ? 0 : WSTOPSIG(status_);
        if (id_ < 0 || ptrace(PTRACE_SYSCALL, id_, nullptr, static_cast<long>(signal)) != 0 ||
            !wait()) {
            return false;
        }
        stops += WSTOPSIG(status_) == systemCall ? 1 : 0;
    }
    return true;
}

// True when it stands stopped, false when it is gone.
bool childProcess::wait() {
    while (waitpid(id_, &status_, 0) < 0) {
        if (errno != EINTR) {
            qFatal("the child process is lost");
        }
    }
    if (WIFSTOPPED(status_)) {
        return true;
    }
    id_ = -1;
    return false;
}

int childProcess::kill() {
    if (id_ > 0) {
        ::kill(id_, SIGKILL);
        while (wait()) {}
    }
    told();
    return WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
}
