#include "framework/resourcemanager/facadetable.h"

#include "framework/resourcemanager/facades.h"

namespace VASK
{
namespace
{
using Arguments = FacadeArguments;

QVariant given(const VariantMap &answer)
{
    return answer.isEmpty() ? QVariant() : QVariant(answer);
}

QVariant given(const VariantList &answer)
{
    return answer.isEmpty() ? QVariant() : QVariant(answer);
}

/// Calls an operation with what it takes before its answer.
template <class Answer, class Operation> QVariant answerOf(Operation operation)
{
    Answer answer;
    operation(answer);
    return given(answer);
}
} // namespace

// How the arguments of a row go into an operation of that shape.
#define FPD_TAKES(Answer, ...) return answerOf<Answer>([&](Answer &answer) { __VA_ARGS__; })
#define FPD_CALL_QueryMap(f) FPD_TAKES(VariantMap, f(a.device, a.query, answer))
#define FPD_CALL_Map(f) FPD_TAKES(VariantMap, f(a.device, answer))
#define FPD_CALL_List(f) FPD_TAKES(VariantList, f(a.device, answer))
#define FPD_CALL_BodyList(f) FPD_TAKES(VariantList, f(a.device, a.body.toMap(), answer))
#define FPD_CALL_BodyMap(f) FPD_TAKES(VariantMap, f(a.device, a.body.toMap(), answer))
#define FPD_CALL_ListBodyMap(f) FPD_TAKES(VariantMap, f(a.device, a.body.toList(), answer))
#define FPD_CALL_OutputMap(f)                                                                                \
    FPD_TAKES(VariantMap, VariantMap body = a.body.toMap(); f(a.device, a.ids.value(0), body, answer))
#define FPD_CALL_IdBodyMap(f) FPD_TAKES(VariantMap, f(a.device, a.ids.value(0), a.body.toMap(), answer))
#define FPD_CALL_Writer(f) FPD_CALL_IdBodyMap(f)
#define FPD_CALL_WriterAll(f) FPD_CALL_IdBodyMap(f)
#define FPD_CALL_IdMap(f) FPD_TAKES(VariantMap, f(a.device, a.ids.value(0), answer))
#define FPD_CALL_IdList(f) FPD_TAKES(VariantList, f(a.device, a.ids.value(0), answer))
#define FPD_CALL_Reader(f)                                                                                   \
    f(a.device, a.ids.value(0), true);                                                                       \
    return QVariant()
#define FPD_CALL_ReaderTwin(f) FPD_TAKES(VariantMap, f(a.device, a.ids.value(0), answer, true))
#define FPD_CALL_Group(f) FPD_TAKES(VariantList, f(a.device, a.ids, a.body.toMap(), answer))

#define FPD_ROW(Facade, Peer, name, key, shape)                                                              \
    {#Facade, #name, key, #shape, [](const Arguments &a) -> QVariant { FPD_CALL_##shape(Peer name); }},

const std::vector<FacadeRow> &facadeRows()
{
    static const std::vector<FacadeRow> rows{
#define FPD_OPERATION(name, key, shape) FPD_ROW(Algorithm, Algorithm::getInstance()->, name, key, shape)
#include "framework/resourcemanager/algorithm.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(Capability, Capability::getInstance()->, name, key, shape)
#include "framework/resourcemanager/capability.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(DebugInfo, DebugInfo::getInstance()->, name, key, shape)
#include "framework/resourcemanager/debuginfo.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(HwScreenInfo, HwScreenInfo::getInstance()->, name, key, shape)
#include "framework/resourcemanager/hwscreeninfo.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(Output, Output::, name, key, shape)
#include "framework/resourcemanager/output.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(PipeInfo, PipeInfo::getInstance()->, name, key, shape)
#include "framework/resourcemanager/pipeinfo.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape)                                                                      \
    FPD_ROW(RvCardDisplayEffect, RvCardDisplayEffect::getInstance()->, name, key, shape)
#include "framework/resourcemanager/rvcarddisplayeffect.def"
#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_ROW(ScreenUrl, ScreenUrl::, name, key, shape)
#include "framework/resourcemanager/screenurl.def"
#undef FPD_OPERATION
    };
    return rows;
}
} // namespace VASK
