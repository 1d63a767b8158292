# cmake -DSITE=FOLDER -P write_version.cmake: writes version.js of the site, which names its files
# and a version computed from their contents. The service worker reads it.
file(GLOB_RECURSE archivos RELATIVE "${SITE}" "${SITE}/*")
list(REMOVE_ITEM archivos version.js servicio.js)
list(SORT archivos)
set(sumas "")
set(nombres "")
foreach(archivo IN LISTS archivos)
  file(SHA256 "${SITE}/${archivo}" suma)
  string(APPEND sumas "${archivo} ${suma}\n")
  string(APPEND nombres "  '${archivo}',\n")
endforeach()
string(SHA256 version "${sumas}")
string(SUBSTRING "${version}" 0 16 version)
file(WRITE "${SITE}/version.js"
  "self.VERSION = '${version}';\nself.ARCHIVOS = [\n  './',\n${nombres}];\n")
