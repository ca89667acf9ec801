#pragma once

#include <QString>

#include <map>
#include <memory>
#include <stdexcept>

namespace forms
{

/// Controls of one kind under one name with an index; element n's objectName is "name(n)".
template <class Control>
class ControlArray
{
public:
    explicit ControlArray(QString name) : name_(std::move(name)) {}

    /// Adds element `index`; the further arguments are the control's own after its name.
    template <class... Args>
    Control &add(int index, Args &&...args)
    {
        auto &slot = controls_[index];
        slot = std::make_unique<Control>(QStringLiteral("%1(%2)").arg(name_).arg(index),
                                         std::forward<Args>(args)...);
        return *slot;
    }
    void remove(int index) { controls_.erase(index); }

    Control &operator()(int index) { return *controls_.at(index); }
    const Control &operator()(int index) const { return *controls_.at(index); }
    bool has(int index) const { return controls_.count(index) != 0; }
    int size() const { return static_cast<int>(controls_.size()); }
    auto begin() { return controls_.begin(); } ///< pairs of index and pointer, in index order
    auto end() { return controls_.end(); }
    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

private:
    QString name_;
    std::map<int, std::unique_ptr<Control>> controls_;
};

} // namespace forms
