#include "app/document/document.h"

#include <QUndoCommand>

#include <utility>

namespace quillfern::app {
namespace {

/// A step costs some 34 KB; nobody takes back more steps than this.
constexpr int most_steps = 1000;

} // namespace

/// The only undo step there is: one value in place of another. Values share what they have in common.
class Document::ReplaceValue : public QUndoCommand {
public:
    ReplaceValue(Document& document, QuillfernDocument after, const QString& label)
        : QUndoCommand(label), document_(document), before_(document.value_), after_(std::move(after))
    {
    }

    void undo() override { document_.replace(before_); }
    void redo() override { document_.replace(after_); }

private:
    Document& document_;
    QuillfernDocument before_;
    QuillfernDocument after_;
};

Document::Document(QuillfernDocument initial, QObject* parent)
    : QObject(parent), value_(std::move(initial)), saved_(value_)
{
    undo_.setUndoLimit(most_steps);
}

void Document::edit(const QString& label, grants::OrgPackage next)
{
    QuillfernDocument after{std::move(next)};
    if (after != value_)
        undo_.push(new ReplaceValue(*this, std::move(after), label));
}

void Document::edit(const QString& label, grants::GrantFile next)
{
    grants::OrgPackage package = value_.package;
    package.file = std::move(next);
    edit(label, std::move(package));
}

void Document::replace(const QuillfernDocument& next)
{
    const QuillfernDocument before = std::exchange(value_, next);
    judge();
    Q_EMIT changed(before, value_);
}

void Document::set_saved(const QuillfernDocument& value)
{
    saved_ = value;
    judge();
}

void Document::set_unsaved()
{
    saved_.reset();
    judge();
}

void Document::judge()
{
    const bool modified = !saved_ || *saved_ != value_;
    if (modified == std::exchange(modified_, modified))
        return;
    Q_EMIT modified_changed(modified);
}

} // namespace quillfern::app
