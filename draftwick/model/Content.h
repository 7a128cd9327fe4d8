#pragma once

#include <draftwick/model/Object.h>
#include <draftwick/model/Recycled.h>

#include <memory>
#include <utility>

namespace draftwick::detail {

class RtfWriter;

/// The life of everything that is written where it was added: open, emitted, finished.
///
/// Adding a child to a container first writes the container's own start, then finishes the child before, so the
/// file has everything in the order in which it was added. What is written can no longer change; what is finished
/// takes no more children.
class DRAFTWICK_API Content : public Node {
public:
    /// How many objects can lie in each other. What is deeper is refused with error 28, whoever nests it: the
    /// input must not decide how much stack a document takes. Readers give up earlier.
    static constexpr int MaxDepth = 200;

    using Node::Node;

    /// Whether the object's own settings are written. They can no longer change.
    bool Emitted() const noexcept { return emitted_; }
    /// Whether the object is closed. It takes no more children.
    bool Finished() const noexcept { return finished_; }

protected:
    /// dwErrTargetEmitted with the class's name once the object is emitted.
    void CheckNotEmitted() const override;
    /// Where the object is written. Error 91 when the document is gone.
    inline RtfWriter& Writer() const;  // in model/internal/Session.h
    /// Writes the object's own start. Judges everything that can fail before the first byte.
    virtual void WriteStart() = 0;
    /// Writes what ends the object, after its last child.
    virtual void WriteEnd() {}

    /// Writes the start, once.
    void Emit();
    /// Finishes the object, once: writes what is still open of it, then its end.
    void Close();
    void CloseCurrentChild();
    /// Takes the object out of what it was added to, as long as nothing of it is written: it is closed without a trace.
    void Withdraw();
    /// dwErrTargetEmitted with the class's name once the object is finished. The name of the method is for the advice.
    void CheckNotFinished(const char* method = __builtin_FUNCTION()) const {
        if (finished_) RefuseFinished(method);
    }

    /// Every Add method: refuses once finished and beyond MaxDepth, writes the start, finishes the child before, creates
    /// the child and keeps it in the slot of its kind. A failure of the file is reported here, before there is a new
    /// child.
    template <class Child, class... Arguments>
    std::shared_ptr<Child> Add(std::shared_ptr<Child>& slot, Arguments&&... arguments) {
        PrepareAdd(Child::Describe);
        return Hold(slot, std::forward<Arguments>(arguments)...);
    }
    /// The first child of an object that was added just now, in the same call: a failure of the file is reported by the
    /// next.
    template <class Child, class... Arguments>
    std::shared_ptr<Child> AddFirst(std::shared_ptr<Child>& slot, Arguments&&... arguments) {
        Emit();
        return Hold(slot, std::forward<Arguments>(arguments)...);
    }
    /// What an Add does before there is a child of that class.
    void PrepareAdd(const Class& (*child)());
    /// Refuses an addition that would bring objects that many levels deeper than this one.
    void CheckDepth(int levels) const {
        if (depth_ + levels > MaxDepth) RefuseDepth();
    }

private:
    template <class HolderType, class Base>
    friend class HeldBy;

    template <class Child, class... Arguments>
    std::shared_ptr<Child> Hold(std::shared_ptr<Child>& slot, Arguments&&... arguments) {
        slot = MakeRecycled<Child>(Node::OriginOfChild(), std::forward<Arguments>(arguments)...);
        open_ = slot.get();
        open_->holder_ = this;
        open_->depth_ = depth_ + 1;
        return slot;
    }
    [[noreturn]] void RefuseFinished(const char* method) const;
    [[noreturn]] void RefuseDepth() const;

    Content* holder_ = nullptr;
    Content* open_ = nullptr;  // the child that is not finished yet; its slot keeps it
    int depth_ = 0;
    bool emitted_ = false;
    bool finished_ = false;
};

/// Content that is only ever added to one kind of object.
template <class HolderType, class Base = Content>
class HeldBy : public Base {
public:
    using Base::Base;

protected:
    /// What the object was added to. For an object that is not finished, in a document that is not gone: then the
    /// slot of its kind keeps it, and all around it.
    HolderType& Holder() const noexcept { return static_cast<HolderType&>(*this->holder_); }
};

}  // namespace draftwick::detail
