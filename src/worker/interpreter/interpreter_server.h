// InterpreterServer: the loop of norvex-postscript, which gives every request a process of its own.
#pragma once

#include <QByteArray>

#include <vector>

#include "protocol/interpreter_request.h"

namespace norvex {

/// Reads no byte of a document, has one thread, ends when nobody can ask any more. An interpreter is killed
/// when nobody waits for its outcome any more, and its scratch folder is removed, whichever way it ended.
class InterpreterServer {
 public:
  /// `taking`: of an InterpreterConnection. Scratch folders are made inside `scratchRoot`, which exists and
  /// is private to the user.
  InterpreterServer(FileDescriptor taking, QByteArray scratchRoot);

  /// Returns in the forked processes only: confined, with the request's descriptors as standard streams and
  /// no other. Gives the process's scratch folder.
  QByteArray serve();

 private:
  struct Child {
    int pid = 0;
    FileDescriptor pidfd, outcome;
    QByteArray scratchFolder;
  };
  /// The scratch folder in a forked process; empty in the server.
  QByteArray takeRequest();
  QByteArray fork(InterpreterRequest request);
  static void becomeInterpreter(int parent, const InterpreterRequest& request,
                                const QByteArray& scratchFolder);
  static void bury(Child& child);

  FileDescriptor taking_;
  QByteArray scratchRoot_;
  std::vector<Child> children_;
};

}  // namespace norvex
