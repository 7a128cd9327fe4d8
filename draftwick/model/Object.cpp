#include <draftwick/model/Class.h>
#include <draftwick/model/Object.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

std::shared_ptr<Object> Object::DocumentObject() const {
    return session_ == nullptr ? nullptr : session_->documentLink.lock();
}

std::shared_ptr<draftwick::Document> Object::Document() const {
    const std::shared_ptr<Object> link = DocumentObject();
    return link == nullptr ? nullptr : std::shared_ptr<draftwick::Document>(link, session_->document);
}

void Object::RefuseWithoutSession() const {
    if (session_ == nullptr || session_->document == nullptr) {
        RaiseRuntimeError(dwRunObjectGone, {},
                          "keep the pointer to the document as long as its objects are used");
    }
    RaiseError(dwErrTargetEmitted, {"Document"}, "the document was given up by Discard; make a new one");
}

dwScaleMode Object::OpenForChange(const char* setter) const {
    const auto& session = Session();
    try {
        CheckNotEmitted();
    } catch (Error& error) {
        error.SetAdvice(AdviceOnLateChange(*this, setter));
        throw;
    }
    return session.settings.scaleMode;
}

void Object::RefuseValue(Error& error, const char* setter, Measure value) const {
    error.SetAdvice(AdviceOnValue(*this, setter, value, Session().settings.scaleMode));
    throw;
}

void Object::Change(std::string& field, std::string_view value, const char* setter) {
    OpenForChange(setter);
    field = ToValidUtf8(value);
}

double Object::Read(Length length) const { return FromTwips(length.Twips(), Session().settings.scaleMode); }

void Node::CheckParent(const char* className) const {
    if (const std::shared_ptr<Object> parent = Parent()) return parent->CheckNotEmitted();
    Session();
    const std::string name{className};
    RaiseError(dwErrTargetEmitted, {name}, "the " + name + " is gone; keep the pointer to it");
}

/// Empty for an object that is not held by any shared pointer.
std::shared_ptr<Object> Node::Self() const { return const_cast<Node*>(this)->weak_from_this().lock(); }

std::shared_ptr<Object> Part::Self() const { return {whole_->Self(), const_cast<Part*>(this)}; }

const std::shared_ptr<detail::Session>& Part::SharedSession() const noexcept {
    return whole_->SharedSession();
}

}  // namespace draftwick
