#pragma once
// Finding the catalogue directory and an object's catalogue file, and loading it in the host.
#include <cstdint>

#include "env/Env.h"
#include "vb/Variant.h"

namespace common {

using env::Env;

using vb::String;

String leeDirCatalogos(Env& env);       // SPACE.INI through the profile reader
String leeDirCatalogosTexto(Env& env);  // Space.ini read as text (the Wizard's reader)

struct CargaCatalogo {
    String ruta;           // the path handed to FileLoad
    bool cargado = false;  // FileLoad's answer
};
// Locates the catalogue file of the object (name from information 0) under dirCatalogos or one
// of its sub-folders and hands it to FileLoad on the shared catalogue object.
CargaCatalogo cargaCatalogoObjeto(Env& env, int32_t objectId);

bool existeArchivo(Env& env, const String& path);
int64_t tamanoArchivo(Env& env, const String& path);

}  // namespace common
