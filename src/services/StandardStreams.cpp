#include "services/StandardStreams.h"

#ifdef Q_OS_UNIX
#include <cerrno>
#include <poll.h>
#include <unistd.h>
#else
#include <io.h>
#endif

namespace ostrand {

namespace {
constexpr qsizetype kPiece = qsizetype(64) * 1024;
}

#ifdef Q_OS_UNIX

StandardInput::State StandardInput::Read(QByteArray &bytes, int timeout) {
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    if (poll(&input, 1, timeout) <= 0) {
        return State::Nothing;
    }
    const qsizetype before = bytes.size();
    bytes.resize(before + kPiece);
    const ssize_t count = read(STDIN_FILENO, bytes.data() + before, size_t(kPiece));
    const bool wait = count < 0 && (errno == EINTR || errno == EAGAIN);
    bytes.resize(before + std::max<ssize_t>(count, 0));
    return count > 0 ? State::Data : wait ? State::Nothing : State::End;
}

bool IsTerminal(std::FILE *stream) {
    return isatty(fileno(stream)) == 1;
}

#else

StandardInput::State StandardInput::Read(QByteArray &bytes, int) {
    const qsizetype before = bytes.size();
    bytes.resize(before + kPiece);
    const int count = _read(0, bytes.data() + before, unsigned(kPiece));
    bytes.resize(before + std::max(count, 0));
    return count > 0 ? State::Data : State::End;
}

bool IsTerminal(std::FILE *stream) {
    return _isatty(_fileno(stream)) != 0;
}

#endif

bool WriteStream(std::FILE *stream, const QByteArray &bytes) {
    const size_t written = std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    return written == size_t(bytes.size()) && std::fflush(stream) == 0;
}

} // namespace ostrand
