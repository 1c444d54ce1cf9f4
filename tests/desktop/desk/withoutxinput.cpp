/// withoutxinput SOCKET SERVER: what connects to the one is connected to the other, an X server,
/// and told that it has no XInput.
#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <string_view>

#include <csignal>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::string_view Hidden("XInputExtension");
constexpr std::string_view Unknown("NoSuchExtension");

using Call = int (*)(int, const sockaddr*, socklen_t);

/// A socket that is bound or connected there; negative where that is not possible.
int socketAt(const char* path, Call bindOrConnect)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    std::strncpy(address.sun_path, path, sizeof(address.sun_path) - 1);
    const int made = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const auto isDone
        = bindOrConnect(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    return isDone ? made : -1;
}

/// The name stands in the question whether the server knows it, which comes early and alone.
void hide(std::span<char> bytes)
{
    const auto find = [bytes](auto from) {
        return std::search(from, bytes.end(), Hidden.begin(), Hidden.end());
    };
    for (auto found = find(bytes.begin()); found != bytes.end(); found = find(found)) {
        std::ranges::copy(Unknown, found);
    }
}

/// What was received beside the bytes: descriptors, of memory for pictures.
void closeAll(msghdr& message)
{
    for (auto* header = CMSG_FIRSTHDR(&message); header != nullptr;
         header = CMSG_NXTHDR(&message, header)) {
        const auto count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        const std::span descriptors(reinterpret_cast<const int*>(CMSG_DATA(header)), count);
        std::ranges::for_each(descriptors, ::close);
    }
}

bool forward(int from, int to)
{
    std::array<char, 1 << 16> bytes;
    alignas(cmsghdr) std::array<char, 256> beside;
    iovec piece{.iov_base = bytes.data(), .iov_len = bytes.size()};
    msghdr message{};
    message.msg_iov = &piece;
    message.msg_iovlen = 1;
    message.msg_control = beside.data();
    message.msg_controllen = beside.size();
    const auto received = ::recvmsg(from, &message, 0);
    if (received <= 0) {
        return false;
    }
    std::span rest(bytes.data(), std::size_t(received));
    hide(rest);
    piece.iov_len = rest.size();
    auto sent = ::sendmsg(to, &message, MSG_NOSIGNAL);
    closeAll(message);
    while (sent > 0 && std::size_t(sent) < rest.size()) {
        rest = rest.subspan(std::size_t(sent));
        sent = ::send(to, rest.data(), rest.size(), MSG_NOSIGNAL);
    }
    return sent > 0;
}

/// Until one of them hangs up.
void join(int program, int server)
{
    std::array<pollfd, 2> ends{{{.fd = program, .events = POLLIN, .revents = 0},
                                {.fd = server, .events = POLLIN, .revents = 0}}};
    while (::poll(ends.data(), ends.size(), -1) > 0) {
        if ((ends[0].revents != 0 && !forward(program, server))
            || (ends[1].revents != 0 && !forward(server, program))) {
            return;
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        return 1;
    }
    ::unlink(argv[1]);
    const int listener = socketAt(argv[1], ::bind);
    if (listener < 0 || ::listen(listener, SOMAXCONN) != 0 || ::write(1, "\n", 1) != 1) {
        return 1;
    }
    ::signal(SIGCHLD, SIG_IGN); // Those that join have nothing to say at their end.
    for (;;) {
        const int program = ::accept(listener, nullptr, nullptr);
        if (program >= 0 && ::fork() == 0) {
            join(program, socketAt(argv[2], ::connect));
            return 0;
        }
        ::close(program);
    }
}
