#include "controls/SpinButton.h"

#include "resources/StringTable.h"

namespace skeldon {

namespace {

struct SpinParts
{
    PictureId picture;
    PictureId pushedPicture;
    StringId name;
};

SpinParts PartsOf(SpinKind kind)
{
    switch (kind) {
    case SpinKind::Down:
        return {PictureId::SpinDown, PictureId::SpinDownPushed, StringId::NameSpinDown};
    case SpinKind::Reset:
        return {PictureId::SpinReset, PictureId::SpinResetPushed, StringId::NameSpinReset};
    case SpinKind::Up:
        break;
    }
    return {PictureId::SpinUp, PictureId::SpinUpPushed, StringId::NameSpinUp};
}

} // namespace

CSpinButton::CSpinButton(SpinKind kind, QWidget* parent)
    : CRepeatButton(PartsOf(kind).picture, PartsOf(kind).pushedPicture, parent)
{
    SetRepeat(kind != SpinKind::Reset);
    SetName(Text(PartsOf(kind).name));
}

} // namespace skeldon
