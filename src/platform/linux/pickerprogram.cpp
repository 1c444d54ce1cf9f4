#include "platform/linux/pickerprogram.h"

namespace quib {

void PickerProgram::chooseFolder(const std::optional<QUrl>& /*startIn*/, Answer answer)
{
    answer({});
}

void PickerProgram::chooseApplication(Answer answer)
{
    answer({});
}

} // namespace quib
