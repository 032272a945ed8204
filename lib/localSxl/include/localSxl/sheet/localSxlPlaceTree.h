// Finds entries by their order, a number, or the next behind it. Nothing is taken out but all at
// once.
//
// A tree of wide nodes: a search looks into a handful of them, whatever the number of entries, and
// a new entry moves no more than the others of its node. A node that is full is split in halves, or
// at its end where entries come in order, so that it stays full.
//
// Entries are cheap to copy. A new one asks for its memory before anything is changed by it.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

template <class Entry>
class localSxlPlaceTree {
public:
    struct Found {
        std::uint64_t order;
        const Entry* entry;  // null: there is none
    };

    localSxlPlaceTree() = default;
    localSxlPlaceTree(const localSxlPlaceTree&) = delete;
    localSxlPlaceTree& operator=(const localSxlPlaceTree&) = delete;

    void swap(localSxlPlaceTree& other) noexcept {
        std::swap(root_, other.root_);
        std::swap(last_, other.last_);
        std::swap(compared_, other.compared_);
        std::swap(moved_, other.moved_);
    }

    // The first entry whose order is not less. It holds until the next insert().
    Found findFrom(std::uint64_t order) const {
        const Node* behind = nullptr;
        const Node* node = root_.get();
        while (!node->isLeaf()) {
            const std::size_t at = childAt(*node, order);
            if (at + 1 < node->count) {
                behind = node->child(at + 1);
            }
            node = node->child(at);
        }
        std::size_t at = placeAt(*node, order);
        if (at == node->count) {
            if (behind == nullptr) {
                return {0, nullptr};
            }
            for (node = behind; !node->isLeaf();) {
                node = node->child(0);
            }
            at = 0;
        }
        return {node->orders[at], &node->entries[at]};
    }

    // There is no entry of that order yet.
    void insert(std::uint64_t order, Entry entry) {
        if (root_->count == width) {
            auto grown = std::make_unique<Node>();
            grown->children = std::make_unique<Children>();
            auto half = halfFor(*root_);
            grown->orders[0] = root_->orders[0];
            grown->children->front() = std::move(root_);
            grown->count = 1;
            root_ = std::move(grown);
            split(*root_, 0, order, std::move(half));
        }
        Node* node = root_.get();
        while (!node->isLeaf()) {
            std::size_t at = childAt(*node, order);
            if (node->child(at)->count == width) {
                split(*node, at, order, halfFor(*node->child(at)));
                at = childAt(*node, order);
            }
            // May be less than all that stands there, but never more.
            node->orders[at] = std::min(node->orders[at], order);
            node = node->child(at);
        }
        const std::size_t at = placeAt(*node, order);
        makeRoom(*node, at);
        node->orders[at] = order;
        node->entries[at] = entry;
        last_ = std::max(last_, order);
    }

    // The greatest order; 0 when there is no entry.
    std::uint64_t lastOrder() const { return last_; }

    // Orders compared and entries moved so far.
    std::int64_t comparedCount() const { return compared_; }
    std::int64_t movedCount() const { return moved_; }

private:
    static constexpr std::size_t width = 64;

    struct Node;
    using Children = std::array<std::unique_ptr<Node>, width>;
    struct Node {
        std::size_t count = 0;
        std::array<std::uint64_t, width> orders;  // of a child: not above its least
        std::array<Entry, width> entries;
        std::unique_ptr<Children> children;  // instead of entries

        bool isLeaf() const { return children == nullptr; }
        Node* child(std::size_t at) const { return (*children)[at].get(); }
    };

    std::size_t placeAt(const Node& node, std::uint64_t order, std::size_t from = 0) const {
        std::size_t to = node.count;
        while (from < to) {
            const std::size_t middle = (from + to) / 2;
            ++compared_;
            if (node.orders[middle] < order) {
                from = middle + 1;
            } else {
                to = middle;
            }
        }
        return from;
    }

    // The child where an order belongs.
    std::size_t childAt(const Node& node, std::uint64_t order) const {
        const std::size_t at = placeAt(node, order, 1);
        return at < node.count && node.orders[at] == order ? at : at - 1;
    }

    static std::unique_ptr<Node> halfFor(const Node& full) {
        auto half = std::make_unique<Node>();
        half->children = full.isLeaf() ? nullptr : std::make_unique<Children>();
        return half;
    }

    // Opens a gap in a node that is not full.
    void makeRoom(Node& node, std::size_t at) {
        const std::size_t end = node.count++;
        moved_ += static_cast<std::int64_t>(end - at);
        moveBackward(node.orders, at, end);
        if (node.isLeaf()) {
            moveBackward(node.entries, at, end);
        } else {
            moveBackward(*node.children, at, end);
        }
    }

    template <class Array>
    static void moveBackward(Array& array, std::size_t from, std::size_t end) {
        std::move_backward(array.data() + from, array.data() + end, array.data() + end + 1);
    }

    // Gives a part of a full child to a new one behind it.
    void split(Node& parent, std::size_t at, std::uint64_t coming, std::unique_ptr<Node> half) {
        Node& full = *parent.child(at);
        const bool isAtEnd = at + 1 == parent.count && full.orders[width - 1] < coming;
        const std::size_t kept = isAtEnd ? width - 1 : width / 2;
        half->count = width - kept;
        moved_ += static_cast<std::int64_t>(half->count);
        std::copy(full.orders.data() + kept, full.orders.data() + width, half->orders.data());
        if (full.isLeaf()) {
            std::copy(full.entries.data() + kept, full.entries.data() + width,
                      half->entries.data());
        } else {
            std::move(full.children->data() + kept, full.children->data() + width,
                      half->children->data());
        }
        full.count = kept;
        makeRoom(parent, at + 1);
        parent.orders[at + 1] = half->orders[0];
        (*parent.children)[at + 1] = std::move(half);
    }

    std::unique_ptr<Node> root_ = std::make_unique<Node>();
    std::uint64_t last_ = 0;
    mutable std::int64_t compared_ = 0;
    std::int64_t moved_ = 0;
};
