// The shapes of the facades' operations: what an operation takes behind the device key, and how it becomes a
// call. An operation is a row in the .def file of its class: FPD_OPERATION(name, key, shape). The class makes
// a function of each, and facadetable.cpp a row by which a program finds it by name. A new shape is one macro
// here and one case there.
#pragma once

#include "framework/resourcemanager/facadecall.h"

// Storage is empty or static.
#define FPD_SHAPE_QueryMap(Storage, name, key)                                                               \
    Storage int name(const QString &, const QMap<QString, QString> &query, VariantMap &answer)               \
    {                                                                                                        \
        return FacadeCall(#name, key).query(query).onSuccess(readHook()).ask(answer);                        \
    }
#define FPD_SHAPE_Map(Storage, name, key)                                                                    \
    Storage int name(const QString &, VariantMap &answer)                                                    \
    {                                                                                                        \
        return FacadeCall(#name, key).ask(answer);                                                           \
    }
#define FPD_SHAPE_List(Storage, name, key)                                                                   \
    Storage int name(const QString &, VariantList &answer)                                                   \
    {                                                                                                        \
        return FacadeCall(#name, key).ask(answer);                                                           \
    }
#define FPD_SHAPE_BodyList(Storage, name, key)                                                               \
    Storage int name(const QString &, const VariantMap &parameters, VariantList &answer)                     \
    {                                                                                                        \
        return FacadeCall(#name, key).body(parameters).ask(answer);                                          \
    }
#define FPD_SHAPE_BodyMap(Storage, name, key)                                                                \
    Storage int name(const QString &, const VariantMap &body, VariantMap &answer)                            \
    {                                                                                                        \
        return FacadeCall(#name, key).body(body).ask(answer);                                                \
    }
#define FPD_SHAPE_ListBodyMap(Storage, name, key)                                                            \
    Storage int name(const QString &device, const VariantList &body, VariantMap &answer)                     \
    {                                                                                                        \
        return FacadeCall(#name, key).body(body).onSuccess(keepHook(device, body)).ask(answer);              \
    }
#define FPD_SHAPE_OutputMap(Storage, name, key)                                                              \
    Storage int name(const QString &, const QString &outputId, VariantMap &body, VariantMap &answer)         \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("outputid", outputId).body(body).ask(answer);                   \
    }
#define FPD_SHAPE_IdBodyMap(Storage, name, key)                                                              \
    Storage int name(const QString &, const QString &id, const VariantMap &body, VariantMap &answer)         \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).body(body).ask(answer);                               \
    }
#define FPD_SHAPE_IdMap(Storage, name, key)                                                                  \
    Storage int name(const QString &, const QString &id, VariantMap &answer)                                 \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).ask(answer);                                          \
    }
#define FPD_SHAPE_IdList(Storage, name, key)                                                                 \
    Storage int name(const QString &, const QString &id, VariantList &answer)                                \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).ask(answer);                                          \
    }
#define FPD_SHAPE_Writer(Storage, name, key)                                                                 \
    FPD_SHAPE_IdBodyMap(Storage, name, key) Storage int name(const QString &, const QString &id,             \
                                                             const VariantMap &body)                         \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).body(body).send();                                    \
    }
/// Fills no placeholder, whatever the id.
#define FPD_SHAPE_WriterAll(Storage, name, key)                                                              \
    Storage int name(const QString &, const QString &, const VariantMap &body, VariantMap &answer)           \
    {                                                                                                        \
        return FacadeCall(#name, key).body(body).ask(answer);                                                \
    }                                                                                                        \
    Storage int name(const QString &, const QString &, const VariantMap &body)                               \
    {                                                                                                        \
        return FacadeCall(#name, key).body(body).send();                                                     \
    }
#define FPD_SHAPE_Reader(Storage, name, key)                                                                 \
    Storage int name(const QString &, const QString &id, bool)                                               \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).send();                                               \
    }
#define FPD_SHAPE_ReaderTwin(Storage, name, key)                                                             \
    Storage int name(const QString &, const QString &id, VariantMap &answer, bool)                           \
    {                                                                                                        \
        return FacadeCall(#name, key).holder("id", id).ask(answer);                                          \
    }
#define FPD_SHAPE_Group(Storage, name, key)                                                                  \
    Storage int name(const QString &device, const QStringList &ids, const VariantMap &body,                  \
                     VariantList &answers)                                                                   \
    {                                                                                                        \
        return putGroupSync(device, ids, body, answers, key);                                                \
    }
/// An operation that does nothing on this device.
#define FPD_NOTHING(name)                                                                                    \
    template <class... Arguments> static int name(Arguments &&...)                                           \
    {                                                                                                        \
        return 0;                                                                                            \
    }
