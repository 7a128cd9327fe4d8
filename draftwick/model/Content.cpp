#include <draftwick/model/Class.h>
#include <draftwick/model/Content.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/Session.h>

namespace draftwick {

void Content::CheckNotEmitted() const {
    if (emitted_) RaiseError(dwErrTargetEmitted, {std::string{Description().name}});
}

void Content::RefuseFinished(const char* method) const {
    RaiseError(dwErrTargetEmitted, {std::string{Description().name}}, AdviceOnLateAddition(*this, method));
}

void Content::Emit() {
    if (emitted_) return;
    WriteStart();
    emitted_ = true;
}

void Content::Close() {
    if (finished_) return;
    Emit();
    if (open_ != nullptr) CloseCurrentChild();
    WriteEnd();
    finished_ = true;
}

void Content::CloseCurrentChild() {
    open_->Close();
    open_ = nullptr;
}

void Content::Withdraw() {
    CheckNotEmitted();
    holder_->open_ = nullptr;
    emitted_ = finished_ = true;
}

void Content::RefuseDepth() const {
    RaiseRuntimeError(dwRunOutOfStackSpace, "the objects lie too deep in each other",
                      "a document takes " + std::to_string(MaxDepth)
                          + " objects in each other; close some before adding more");
}

void Content::PrepareAdd(const Class& (*child)()) {
    RtfWriter& writer = Writer();
    if (finished_) RefuseFinished(("Add" + std::string{child().name}).c_str());
    CheckDepth(1);
    if (!emitted_) Emit();
    if (open_ != nullptr) CloseCurrentChild();
    writer.output.Checkpoint();
}

}  // namespace draftwick
