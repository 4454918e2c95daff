// What a message channel never sends: bytes and descriptors as they are, for tests of its other side.
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <sys/socket.h>
#include <sys/uio.h>

#include <cstring>
#include <initializer_list>

namespace norvex::kit {

/// The body with its length before it.
inline QByteArray framed(const QByteArray& body) {
  QByteArray wire(4, '\0');
  qToLittleEndian(quint32(body.size()), wire.data());
  return wire + body;
}

/// Sends the bytes with up to 8 descriptors at once; false when the other side is gone.
inline bool sendRaw(int socket, const QByteArray& bytes, std::initializer_list<int> descriptors = {}) {
  iovec part = {const_cast<char*>(bytes.constData()), size_t(bytes.size())};
  msghdr header = {};
  header.msg_iov = &part;
  header.msg_iovlen = 1;
  alignas(cmsghdr) char room[CMSG_SPACE(8 * sizeof(int))] = {};
  if (descriptors.size() > 0) {
    header.msg_control = room;
    header.msg_controllen = CMSG_SPACE(descriptors.size() * sizeof(int));
    cmsghdr* control = CMSG_FIRSTHDR(&header);
    control->cmsg_level = SOL_SOCKET;
    control->cmsg_type = SCM_RIGHTS;
    control->cmsg_len = CMSG_LEN(descriptors.size() * sizeof(int));
    std::memcpy(CMSG_DATA(control), descriptors.begin(), descriptors.size() * sizeof(int));
  }
  return ::sendmsg(socket, &header, MSG_NOSIGNAL) == ssize_t(bytes.size());
}

}  // namespace norvex::kit
