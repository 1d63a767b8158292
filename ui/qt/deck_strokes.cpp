// The tables of strokes, as they are written from the drawings.
#include "ui/qt/deck_strokes.h"

#include <string_view>

namespace tasca {
namespace {

#include "ui/qt/deck_strokes.inc"

}  // namespace

constinit const std::span<const char> PathOrders{orderTable};
constinit const std::span<const std::int16_t> PathCoordinates{coordinateTable};
constinit const std::span<const Stroke> Strokes{strokeTable};
constinit const std::span<const Piece> Pieces{pieceTable};
constinit const std::span<const Drawing> Symbols{symbolTable};
constinit const std::span<const Drawing> CardDrawings{cardTable};
constinit const std::span<const Drawing> SmallCardDrawings{smallCardTable};
constinit const std::span<const IconDrawing> IconDrawings{iconTable};
constinit const std::span<const std::uint32_t> LightPalette{lightColours};
constinit const std::span<const std::uint32_t> DarkPalette{darkColours};

}  // namespace tasca
