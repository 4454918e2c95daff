// Descriptors that were sent and that nobody receives, as another program of the user's may leave them.
#pragma once

#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "base/file_descriptor.h"

namespace norvex::kit {

class DescriptorsOnTheirWay {
 public:
  /// isComplete() tells whether the system let us.
  explicit DescriptorsOnTheirWay(size_t count) {
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;  // no more may be on their way than we may open
    ::setrlimit(RLIMIT_NOFILE, &limit);
    for (size_t sent = 0; sent < count && complete_; sent += kInAMessage) complete_ = send();
  }
  [[nodiscard]] bool isComplete() const { return complete_; }

 private:
  static constexpr size_t kInAMessage = 100;

  bool send() {
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) return false;
    sockets_.emplace_back(ends[0]);
    sockets_.emplace_back(ends[1]);
    char byte = 0;
    iovec part = {&byte, 1};
    alignas(cmsghdr) char space[CMSG_SPACE(kInAMessage * sizeof(int))] = {};
    msghdr message = {};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = space;
    message.msg_controllen = sizeof space;
    cmsghdr* header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(kInAMessage * sizeof(int));
    int descriptors[kInAMessage];
    std::fill_n(descriptors, kInAMessage, ends[0]);
    std::memcpy(CMSG_DATA(header), descriptors, sizeof descriptors);
    return ::sendmsg(ends[1], &message, MSG_NOSIGNAL) == 1;
  }

  std::vector<FileDescriptor> sockets_;
  bool complete_ = true;
};

}  // namespace norvex::kit
