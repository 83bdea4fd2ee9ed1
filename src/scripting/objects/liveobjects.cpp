#include "scripting/objects/liveobjects.h"

namespace Corvex::Scripting {

void LiveObjects::releaseAll() {
  m_names.clear();
  for (ObjectHandle* handle : qAsConst(m_handles)) {
    handle->m_object = nullptr;
  }
}

ObjectHandle::ObjectHandle(const SharedPtr<Object>& object, int classNumber, const std::shared_ptr<LiveObjects>& live)
    : m_object(object), m_classNumber(classNumber), m_live(live) {
  m_live->m_handles.insert(this);
}

ObjectHandle::~ObjectHandle() {
  m_live->m_handles.remove(this);
  m_live->m_names.remove(m_object.get());
}

}  // namespace Corvex::Scripting
