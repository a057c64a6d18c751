#include "render/PdfEngine.h"

namespace tabo {

struct PdfEngine::Private
{
};

PdfEngine::PdfEngine(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

PdfEngine::~PdfEngine() = default;

} // namespace tabo
