#include "app/OutputCommands.h"

#include "render/Formatters.h"
#include "render/PdfEngine.h"

namespace tabo {

OutputCommands::OutputCommands(AppController &app)
    : m_app(app)
{
}

OutputCommands::~OutputCommands() = default;

} // namespace tabo
