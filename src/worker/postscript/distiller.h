// Ghostscript as it is started to turn PostScript into PDF, or pages into plates. Apart from distill.h, so
// that it can be started before the libraries that the result needs are even loaded.
#pragma once

#include <QByteArray>
#include <QList>

#include <functional>
#include <memory>

#include "base/result.h"
#include "worker/engine/engine.h"
#include "worker/postscript/ghostscript.h"

namespace norvex::engine {

/// The arguments of gs, behind its name.
[[nodiscard]] QList<QByteArray> distillerArguments(InterpreterDevice device = InterpreterDevice::Pdf);

/// A child that waits for its program: forked where there is a program that does it, else gs itself. Fails as
/// GhostscriptChild::start().
[[nodiscard]] Result<std::shared_ptr<GhostscriptChild>> startDistiller(
    const EngineContext& context, InterpreterDevice device = InterpreterDevice::Pdf);

/// The pieces that a child reads; of a forked one the output is completed by them, with completeOutput().
using GhostscriptInput = std::function<QList<QByteArray>(bool forked)>;
/// One run, by the context's warmGhostscript where it waits for this device, which it then uses up. `look`
/// and failures as GhostscriptChild::run().
[[nodiscard]] Result<GhostscriptOutput> runGhostscript(InterpreterDevice device,
                                                       const GhostscriptInput& input, EngineContext& context,
                                                       const ProgramLook& look = {});
/// PostScript that completes what the device has been given, here and now.
[[nodiscard]] QByteArray completeOutput();

/// Starts Ghostscript in the context's warmGhostscript so that it has initialised itself by the time the
/// document's bytes arrive. The message server calls it in a child that was told ForkRequest::postScript.
/// Harmless when gs cannot be started or the document needs none.
void warmUpGhostscript(EngineContext& context);

}  // namespace norvex::engine
