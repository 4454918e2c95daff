// DocumentServer: answers the requests for one document until the other side closes the connection.
#pragma once

#include <memory>
#include <optional>

#include "protocol/message_channel.h"
#include "worker/engine_set.h"
#include "worker/request_queue.h"

namespace norvex {

/// Lives on the main thread of a document's process.
class DocumentServer {
 public:
  /// Borrows the engines. With a refusal every request is answered with it.
  DocumentServer(FileDescriptor socket, const EngineSet& engines, engine::EngineContext context,
                 std::optional<Error> refusal);

  /// Serves; the process ends with the connection.
  [[noreturn]] void run();

 private:
  /// An answer with what travels beside it.
  struct Answer {
    ReplyBody body;
    FileDescriptor descriptor;
  };
  Answer answer(ArrivedRequest& arrived);
  Answer serve(const OpenRequest& request, FileDescriptor descriptor);
  Answer serve(const RenderRequest& request, FileDescriptor descriptor);
  Answer serve(const PdfRequest& request, FileDescriptor descriptor);
  Answer serve(const ComposeRequest& request, FileDescriptor descriptor);
  Answer serve(const SvgRequest& request, FileDescriptor descriptor);
  Answer serve(const ExamineRequest& request, FileDescriptor descriptor);
  Answer serve(const DecodePreviewRequest& request, FileDescriptor descriptor);
  Answer serve(const AttributesRequest& request, FileDescriptor descriptor);
  Answer serve(const PagesRequest& request, FileDescriptor descriptor);
  [[nodiscard]] Answer answerOf(Result<engine::EngineBytes> bytes) const;
  void send(quint32 id, Answer answer);

  MessageChannel channel_;
  const EngineSet& engines_;
  engine::EngineContext context_;
  std::optional<Error> refusal_;
  QByteArray document_;  ///< engines may borrow the bytes for as long as they live
  std::unique_ptr<engine::DocumentEngine> engine_;
};

}  // namespace norvex
