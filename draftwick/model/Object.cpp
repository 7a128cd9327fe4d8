#include <draftwick/model/Class.h>
#include <draftwick/model/Object.h>
#include <draftwick/model/internal/Advice.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

NoRef::NoRef(const std::shared_ptr<Object>& object)
    : object_(object), class_(object == nullptr ? nullptr : &object->Description()) {}

// An object is changed through references to it, whoever asks for one.
NoRef::NoRef(const Node& object)
    : object_(const_cast<Node&>(object).weak_from_this()), class_(&object.Description()) {}

std::shared_ptr<Object> Object::DocumentObject() const {
    return session_ == nullptr ? nullptr : session_->documentLink.lock();
}

std::shared_ptr<draftwick::Document> Object::Document() const {
    const std::shared_ptr<Object> link = DocumentObject();
    return link == nullptr ? nullptr : std::shared_ptr<draftwick::Document>(link, session_->document);
}

detail::Session& Object::Session() const {
    if (session_ == nullptr || session_->document == nullptr) {
        RaiseRuntimeError(dwRunObjectGone, {},
                          "keep the pointer to the document as long as its objects are used");
    }
    if (session_->discarded) {
        RaiseError(dwErrTargetEmitted, {"Document"}, "the document was given up by Discard; make a new one");
    }
    return *session_;
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

std::shared_ptr<Object> Node::RequireParent() const {
    std::shared_ptr<Object> parent = Parent();
    if (parent == nullptr) {
        Session();
        const std::string name{parent_.ClassOf()->name};
        RaiseError(dwErrTargetEmitted, {name}, "the " + name + " is gone; keep the pointer to it");
    }
    return parent;
}

void Node::CheckNotEmitted() const { RequireParent()->CheckNotEmitted(); }

/// Empty for an object that is not held by any shared pointer.
std::shared_ptr<Object> Node::Self() const { return const_cast<Node*>(this)->weak_from_this().lock(); }

std::shared_ptr<Object> Part::Self() const { return {whole_->Self(), const_cast<Part*>(this)}; }

const std::shared_ptr<detail::Session>& Part::SharedSession() const noexcept {
    return whole_->SharedSession();
}

}  // namespace draftwick
