// A document that tests build and bend: any scalar text, members in any order, every place reachable by number.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::test {

class JsonTree {
  public:
    enum class Kind { Scalar, Array, Object };

    // A scalar by its JSON text; nothing says that it has to be a scalar, or JSON.
    explicit JsonTree(std::string text = "null") : text_(std::move(text)) {}
    static JsonTree String(std::string_view content);
    static JsonTree Array() { return JsonTree(Kind::Array); }
    static JsonTree Object() { return JsonTree(Kind::Object); }

    Kind kind() const { return kind_; }
    bool isEmpty() const { return entries_.empty(); }
    std::size_t size() const { return entries_.size(); }

    void Add(JsonTree element) { entries_.emplace_back(std::string{}, std::move(element)); }
    // Adds a member whether there is one of that name or not.
    void Add(std::string key, JsonTree member) { entries_.emplace_back(std::move(key), std::move(member)); }
    JsonTree* Find(std::string_view key);
    // The member at 'a/b/c', made with the objects on the way to it.
    JsonTree& At(std::string_view path);

    // Every value in the tree, the root first. Good until the tree changes its shape.
    std::vector<JsonTree*> Places();
    // Takes members away at random, all but `keepPercent` in a hundred, at every depth.
    template <class Random>
    void Thin(Random& random, unsigned keepPercent) {
        if (kind_ == Kind::Object) {
            std::erase_if(entries_, [&](const auto&) { return random() % 100 >= keepPercent; });
        }
        for (auto& entry : entries_)
            entry.second.Thin(random, keepPercent);
    }

    // Puts the members of every object in key order, as devices send them.
    void Sort();

    std::string Text() const;

  private:
    explicit JsonTree(Kind kind) : kind_(kind) {}
    void Append(std::string& out) const;

    Kind kind_ = Kind::Scalar;
    std::string text_;
    std::vector<std::pair<std::string, JsonTree>> entries_;
};

} // namespace orrery::test
