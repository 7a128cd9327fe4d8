#pragma once

#include <draftwick/base/Variant.h>
#include <draftwick/model/Rules.h>
#include <draftwick/platform/Export.h>

#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>

namespace draftwick {

struct Class;
class Document;
class Object;

namespace detail {

struct Access;
class Node;
class Part;
class Session;

/// A link to an object that it does not own: it stores the identity and gives a new owning reference on request,
/// or nothing once the object is gone.
class NoRef {
public:
    NoRef() = default;
    explicit NoRef(std::weak_ptr<Object> object) noexcept : object_(std::move(object)) {}

    /// The object; empty once it is gone.
    std::shared_ptr<Object> Resolve() const { return object_.lock(); }

private:
    std::weak_ptr<Object> object_;
};

/// What a new object of its own is told at its creation: the session, and the object that it belongs to or that belongs
/// to the same one. Only the library makes one, for the length of that call.
class Origin {
    friend class draftwick::Document;
    friend class Node;
    friend class Part;

    explicit Origin(const std::shared_ptr<Session>& session, const Node* parent = nullptr,
                    const NoRef* sibling = nullptr)
        : session_(session), parent_(parent), siblings_(sibling) {}

    inline NoRef Parent() const;

    const std::shared_ptr<Session>& session_;
    const Node* parent_;
    const NoRef* siblings_;
};

/// What a new part of an object is told at its creation. Only an object makes one.
class Owner {
    friend class draftwick::Object;
    friend class Part;

    explicit Owner(Object& object) noexcept : object_(object) {}

    Object& object_;
};

}  // namespace detail

/// Everything in the object model. Programs hold objects by std::shared_ptr; none dangles, and none but the document
/// itself keeps the document alive. An object whose document is gone can still be read where neither a unit of
/// length nor a name in the document's collections (of a font, style or list) is involved; everything else is refused
/// with error 91.
class DRAFTWICK_API Object {
public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    /// The object that this one belongs to; empty when that is gone, and for a document.
    virtual std::shared_ptr<Object> Parent() const = 0;
    /// The document; empty once your program has released it.
    std::shared_ptr<draftwick::Document> Document() const;
    /// The document as a generic object.
    std::shared_ptr<Object> DocumentObject() const;

    /// An owning reference to this object.
    virtual std::shared_ptr<Object> Self() const = 0;

    /// The class's run-time description: its members by name.
    virtual const Class& Description() const = 0;

protected:
    /// The session is null for an object that needs no document; a Node keeps it.
    explicit Object(detail::Session* session) noexcept : session_(session) {}

    /// Raises dwErrTargetEmitted once the object is written and can no longer change.
    virtual void CheckNotEmitted() const = 0;
    /// What the objects of one document share. Error 91 when the document is gone, dwErrTargetEmitted ("Document") when
    /// it was given up. In line, in model/internal/Session.h.
    inline detail::Session& Session() const;
    virtual const std::shared_ptr<detail::Session>& SharedSession() const noexcept = 0;
    /// What a new object that belongs to this one is told.
    virtual detail::Origin OriginOfChild() const = 0;
    /// What a new part of this object is told.
    detail::Owner AsOwner() noexcept { return detail::Owner(*this); }

    /// Every setter: refuses once written, checks the rule of the field, converts and stores.
    /// The last argument, the name of the function that calls, is for the advice.
    template <class Field, class Value>
    void Change(Field& field, const Value& value, const char* setter = __builtin_FUNCTION()) {
        const dwScaleMode scale = OpenForChange(setter);
        if constexpr (requires { field.Set(value, scale); }) {
            try {
                field.Set(value, scale);
            } catch (Error& error) {
                RefuseValue(error, setter, value);
            }
        } else if constexpr (requires { field.Set(value); }) {
            try {
                field.Set(value);
            } catch (Error& error) {
                RefuseValue(error, setter, static_cast<double>(value));
            }
        } else {
            field = value;
        }
    }
    /// As above for texts: what is not UTF-8 becomes U+FFFD.
    void Change(std::string& field, std::string_view value, const char* setter = __builtin_FUNCTION());
    /// What every setter does first: refuses when the document is gone or the object is written. Returns the
    /// document's unit of length.
    dwScaleMode OpenForChange(const char* setter = __builtin_FUNCTION()) const;
    /// Goes on with a refusal that was caught, and says which property refused what, and what it takes.
    [[noreturn]] void RefuseValue(Error& error, const char* setter, Measure value) const;
    /// A length in the document's unit.
    double Read(rule::Length length) const;

    /// An owning reference to a part of this object.
    template <class Member>
    std::shared_ptr<Member> Share(Member& part) const {
        return {Self(), &part};
    }

private:
    friend struct detail::Access;
    friend class detail::Node;
    friend class detail::Part;

    [[noreturn]] void RefuseWithoutSession() const;

    detail::Session* session_;
};

namespace detail {

/// An object of its own: it lives as long as somebody holds it.
class DRAFTWICK_API Node : public Object, public std::enable_shared_from_this<Object> {
public:
    explicit Node(const Origin& origin)
        : Object(origin.session_.get()), parent_(origin.Parent()), keptSession_(origin.session_) {}

    std::shared_ptr<Object> Parent() const override { return parent_.Resolve(); }
    std::shared_ptr<Object> Self() const override;

protected:
    /// An object that needs no document.
    Node() : Object(nullptr) {}

    /// Refused when the parent refuses, which is the document where a class says nothing else.
    void CheckNotEmitted() const override { CheckParent("Document"); }
    /// As the parent does. When that is gone: error 91 if the document is gone too, else dwErrTargetEmitted with the name
    /// of the parent's class.
    void CheckParent(const char* className) const;
    const std::shared_ptr<detail::Session>& SharedSession() const noexcept override { return keptSession_; }
    Origin OriginOfChild() const override { return Origin(keptSession_, this); }
    /// What an object is told that belongs to the same parent: a font belongs to the document.
    Origin OriginOfSibling() const { return Origin(keptSession_, nullptr, &parent_); }

private:
    friend class Origin;

    NoRef parent_;
    std::shared_ptr<detail::Session> keptSession_;
};

// An object is changed through references to it, whoever asks for one.
inline NoRef Origin::Parent() const {
    if (parent_ != nullptr) return NoRef(const_cast<Node*>(parent_)->weak_from_this());
    return siblings_ != nullptr ? *siblings_ : NoRef();
}

/// A part of another object: whoever holds it keeps the whole alive. It refuses when the whole refuses.
class DRAFTWICK_API Part : public Object {
public:
    explicit Part(Owner owner) : Object(owner.object_.session_), whole_(&owner.object_) {}

    std::shared_ptr<Object> Parent() const override { return whole_->Self(); }
    std::shared_ptr<Object> Self() const override;

protected:
    void CheckNotEmitted() const override { whole_->CheckNotEmitted(); }
    const std::shared_ptr<detail::Session>& SharedSession() const noexcept override;
    /// An object in a collection belongs to the collection's owner.
    Origin OriginOfChild() const override { return whole_->OriginOfChild(); }
    /// What the parts in a collection of parts are told: they belong to the collection's owner.
    Owner WholeAsOwner() const noexcept { return Owner(*whole_); }

private:
    Object* whole_;
};

/// A part that is created when it is first read, in place. Whether it exists can matter: a writer uses an object's own
/// part only if it was ever created. (A std::optional for each kind of part costs a tenth of the compile time.)
template <class Type>
class Lazy {
public:
    Lazy() noexcept {}
    Lazy(const Lazy&) = delete;
    Lazy& operator=(const Lazy&) = delete;
    ~Lazy() {
        if (exists_) part_.~Type();
    }

    const Type* Find() const noexcept { return exists_ ? &part_ : nullptr; }
    template <class... Arguments>
    Type& Get(const Arguments&... arguments) {
        if (!exists_) ::new (&part_) Type(arguments...);
        exists_ = true;
        return part_;
    }

private:
    union {
        Type part_;
    };
    bool exists_ = false;
};

}  // namespace detail

}  // namespace draftwick
