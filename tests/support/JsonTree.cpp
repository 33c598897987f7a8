#include "support/JsonTree.h"

#include <algorithm>

namespace orrery::test {

namespace {

std::string Quoted(std::string_view content) {
    std::string text = "\"";
    for (const char c : content) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

} // namespace

JsonTree JsonTree::String(std::string_view content) {
    return JsonTree(Quoted(content));
}

JsonTree* JsonTree::Find(std::string_view key) {
    if (kind_ != Kind::Object) return nullptr;
    for (auto& [name, value] : entries_) {
        if (name == key) return &value;
    }
    return nullptr;
}

JsonTree& JsonTree::At(std::string_view path) {
    if (kind_ != Kind::Object) *this = Object();
    const std::size_t slash = path.find('/');
    const std::string_view key = path.substr(0, slash);
    JsonTree* member = Find(key);
    if (member == nullptr) {
        Add(std::string(key), JsonTree());
        member = &entries_.back().second;
    }
    return slash == std::string_view::npos ? *member : member->At(path.substr(slash + 1));
}

std::vector<JsonTree*> JsonTree::Places() {
    std::vector<JsonTree*> places{this};
    for (std::size_t i = 0; i < places.size(); ++i) {
        for (auto& entry : places[i]->entries_)
            places.push_back(&entry.second);
    }
    return places;
}

void JsonTree::Sort() {
    if (kind_ == Kind::Object) {
        std::stable_sort(entries_.begin(), entries_.end(),
                         [](const auto& left, const auto& right) { return left.first < right.first; });
    }
    for (auto& entry : entries_)
        entry.second.Sort();
}

std::string JsonTree::Text() const {
    std::string out;
    Append(out);
    return out;
}

void JsonTree::Append(std::string& out) const {
    if (kind_ == Kind::Scalar) {
        out += text_;
        return;
    }
    out += kind_ == Kind::Array ? '[' : '{';
    bool first = true;
    for (const auto& [name, value] : entries_) {
        if (!first) out += ',';
        first = false;
        if (kind_ == Kind::Object) out += Quoted(name) + ":";
        value.Append(out);
    }
    out += kind_ == Kind::Array ? ']' : '}';
}

} // namespace orrery::test
