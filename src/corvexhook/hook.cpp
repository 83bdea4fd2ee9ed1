#include "corvexhook/hook.h"

namespace Corvex {

namespace {

Hook theHook;

}  // namespace

Hook* Hook::hook = &theHook;

void Hook::send(int connection, const QString& text, const ArgumentList& arguments) {
  if (m_receiver) {
    m_receiver(connection, text, arguments);
  }
}

}  // namespace Corvex
