// ForkServer: the process that has everything linked and warm, and forks one child for each document.
#pragma once

#include <QByteArray>

#include <functional>
#include <vector>

#include "protocol/message_channel.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Never reads a byte of a document and never has a second thread, so that forking is safe. It ends with the
/// connection to the program that started it: that, and not a death signal, is how it follows its parent,
/// because the kernel sends such a signal when the *thread* that started a process ends. Whichever way a
/// child ends, its process group is killed and its scratch folder, if it has one, removed.
class ForkServer {
 public:
  /// The child's work with its socket; the process ends when it returns. `scratchFolder`: empty but for
  /// PostScript.
  using ChildMain =
      std::function<void(FileDescriptor socket, const ForkRequest&, const QString& scratchFolder)>;

  /// Initialises what children inherit. Called once, when nobody has asked for a child for a while or when
  /// several are asked for: whoever wants a single picture is not kept waiting for what it may never need.
  /// Starts no thread.
  using WarmUp = std::function<void()>;

  /// Loads what children like this one need and inherit, before the first of them is forked. Gives a
  /// descriptor that this child shall have as kSharedDescriptor, which stays the caller's; -1: none.
  using Prepare = std::function<int(const ForkRequest&)>;
  /// Something that children may ask for: `descriptor` gives where that is noticed (-1: nowhere), `serve` is
  /// called when it is readable, and from then on it is not.
  struct Wish {
    std::function<int()> descriptor;
    std::function<void()> serve;
  };
  static constexpr int kSharedDescriptor = 4;  ///< not open in a child that got none

  /// Scratch folders are made inside `scratchRoot`, which exists and is private to the user. All functions
  /// but `childMain` may be empty.
  ForkServer(FileDescriptor control, QByteArray scratchRoot, ChildMain childMain, WarmUp warmUp = {},
             Prepare prepare = {}, Wish wish = {});

  /// A child that does not end by itself and well is told, too: an Error with the number of its request.
  /// Serves until the control connection closes; all children are then gone.
  void run();

 private:
  struct Child {
    quint32 number = 0;  ///< of its request
    int pid = 0;
    FileDescriptor pidfd;
    QByteArray scratchFolder;
  };
  bool answerControl();
  void warmUp();
  /// What there is time for when nobody asks for anything.
  void rest();
  Result<Child> fork(const ForkRequest& request, FileDescriptor socket, int shared);
  [[noreturn]] void becomeChild(int parent, const ForkRequest& request, FileDescriptor socket, int shared,
                                const QByteArray& scratchFolder);
  /// Its status, as waitpid() gives it.
  static int bury(Child& child);
  /// Tells a second answer to the request: the child ended before its time.
  void tellEnd(quint32 number, int status);

  MessageChannel control_;
  QByteArray scratchRoot_;
  ChildMain childMain_;
  WarmUp warmUp_;  ///< empty once it has been called
  Prepare prepare_;
  Wish wish_;
  std::vector<Child> children_;
  bool isAtRest_ = false;  ///< nothing is left to be done meanwhile
  quint32 forks_ = 0;      ///< requests so far; the answer's id
};

}  // namespace norvex
