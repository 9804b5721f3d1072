#pragma once

#include <memory>
#include <utility>

namespace quillfern {

/// An immutable value that many snapshots of a document hold together.
///
/// Copying a Shared copies a pointer. Two are equal when they are the same node or, failing that, when their values
/// are equal, so comparing a document with its previous state costs only what differs. There is no empty state: a
/// default-made Shared holds a default-made T. Changing makes a new node and leaves every other holder alone:
///
///     file.grants[3] = file.grants[3].with([](Grant& grant) { grant.title = "Cold storage"; });
template <class T>
class Shared {
public:
    Shared() : node_(empty_node()) { }
    Shared(T value) : node_(std::make_shared<const T>(std::move(value))) { }

    const T& operator*() const { return *node_; }
    const T* operator->() const { return node_.get(); }
    operator const T&() const { return *node_; }

    template <class Edit>
    Shared with(Edit&& edit) const
    {
        T changed = *node_;
        std::forward<Edit>(edit)(changed);
        return Shared(std::move(changed));
    }

    bool same_node(const Shared& other) const { return node_ == other.node_; }

    friend bool operator==(const Shared& a, const Shared& b) { return a.node_ == b.node_ || *a.node_ == *b.node_; }

private:
    static const std::shared_ptr<const T>& empty_node()
    {
        static const std::shared_ptr<const T> node = std::make_shared<const T>();
        return node;
    }

    std::shared_ptr<const T> node_;
};

} // namespace quillfern
