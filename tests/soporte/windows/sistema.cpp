// Test support on Windows: the process's own environment block, VirtualAlloc'd pages,
// LoadLibrary and CreateProcess. Paths handed down by the build of a cross build are Unix paths;
// under wine, drive Z: is the root of the Unix file system.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "soporte/sistema.h"

namespace {

std::string ruta_windows(std::string ruta)
{
    if (!ruta.empty() && ruta.front() == '/')
        ruta = "Z:" + ruta;
    for (char &c : ruta)
        if (c == '/')
            c = '\\';
    return ruta;
}

// A file opened for writing from scratch, its handle inherited by the programs started.
HANDLE fichero_heredable(const std::string &ruta)
{
    SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
    return CreateFileA(ruta_windows(ruta).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       &heredable, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

} // namespace

std::optional<std::string> lee_variable(const char *nombre)
{
    const DWORD necesarios = GetEnvironmentVariableA(nombre, nullptr, 0);
    if (necesarios == 0)
        return std::nullopt; // an empty value needs 1 byte, for its terminator
    std::string valor(necesarios, '\0');
    valor.resize(GetEnvironmentVariableA(nombre, valor.data(), necesarios));
    return valor;
}

void pon_variable(const char *nombre, const char *valor) { SetEnvironmentVariableA(nombre, valor); }

void quita_variable(const char *nombre) { SetEnvironmentVariableA(nombre, nullptr); }

unsigned long id_proceso() { return GetCurrentProcessId(); }

size_t bytes_visibles_de_bloque(size_t bytes)
{
    const size_t pagina = Paginas::bytes_pagina();
    return (bytes + pagina - 1) / pagina * pagina;
}

std::string directorio_temporal()
{
    char ruta[MAX_PATH + 1];
    const DWORD longitud = GetTempPathA(sizeof ruta, ruta);
    return std::string(ruta, longitud);
}

size_t Paginas::bytes_pagina()
{
    SYSTEM_INFO sistema;
    GetSystemInfo(&sistema);
    return sistema.dwPageSize;
}

Paginas::Paginas(size_t cuantas)
    : cuantas_(cuantas),
      inicio_(static_cast<char *>(VirtualAlloc(nullptr, cuantas * bytes_pagina(),
                                               MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)))
{
}

Paginas::~Paginas() { VirtualFree(inicio_, 0, MEM_RELEASE); }

void Paginas::prohibe(size_t primera, size_t cuantas)
{
    DWORD antes;
    VirtualProtect(inicio_ + primera * bytes_pagina(), cuantas * bytes_pagina(), PAGE_NOACCESS, &antes);
}

void Paginas::solo_lectura(size_t primera, size_t cuantas)
{
    DWORD antes;
    VirtualProtect(inicio_ + primera * bytes_pagina(), cuantas * bytes_pagina(), PAGE_READONLY, &antes);
}

Biblioteca::Biblioteca(const char *ruta) : manejador_(LoadLibraryA(ruta_windows(ruta).c_str())) {}

Biblioteca::~Biblioteca()
{
    if (manejador_ != nullptr)
        FreeLibrary(static_cast<HMODULE>(manejador_));
}

void *Biblioteca::direccion(const char *nombre) const
{
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(manejador_), nombre));
}

// The program starts with a console of its own, hidden, so that the interrupt reaches it alone;
// the exit status is the process's exit code.
Proceso::Proceso(const std::string &programa, const std::vector<std::string> &argumentos,
                 const std::string &salida, const std::string &errores)
{
    std::string linea = "\"" + ruta_windows(programa) + "\"";
    for (const std::string &argumento : argumentos)
        linea += " \"" + argumento + "\"";
    HANDLE fuera = fichero_heredable(salida);
    HANDLE fallos = fichero_heredable(errores);
    STARTUPINFOA inicio{};
    inicio.cb = sizeof inicio;
    inicio.dwFlags = STARTF_USESTDHANDLES | STARTF_USESHOWWINDOW;
    inicio.wShowWindow = SW_HIDE;
    inicio.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    inicio.hStdOutput = fuera;
    inicio.hStdError = fallos;
    PROCESS_INFORMATION proceso{};
    if (CreateProcessA(nullptr, linea.data(), nullptr, nullptr, TRUE, CREATE_NEW_CONSOLE,
                       nullptr, nullptr, &inicio, &proceso)) {
        CloseHandle(proceso.hThread);
        id_ = reinterpret_cast<long long>(proceso.hProcess);
    }
    CloseHandle(fuera);
    CloseHandle(fallos);
}

Proceso::~Proceso()
{
    espera();
    if (id_ != -1)
        CloseHandle(reinterpret_cast<HANDLE>(id_));
}

// Ctrl+C, pressed on the program's console: this process leaves its own console, joins the
// program's with Ctrl+C ignored for itself, sends the event, and goes back once the program is
// gone (ten seconds at most), so that the event cannot reach this process afterwards.
bool Proceso::interrumpe()
{
    const auto proceso = reinterpret_cast<HANDLE>(id_);
    FreeConsole();
    bool entregada = AttachConsole(GetProcessId(proceso)) && SetConsoleCtrlHandler(nullptr, TRUE) &&
                     GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) &&
                     WaitForSingleObject(proceso, 10000) == WAIT_OBJECT_0;
    if (!entregada)
        TerminateProcess(proceso, 1);
    FreeConsole();
    SetConsoleCtrlHandler(nullptr, FALSE);
    AttachConsole(ATTACH_PARENT_PROCESS);
    return entregada;
}

int Proceso::espera()
{
    if (!esperado_ && id_ != -1) {
        const auto proceso = reinterpret_cast<HANDLE>(id_);
        DWORD codigo = 0;
        WaitForSingleObject(proceso, INFINITE);
        GetExitCodeProcess(proceso, &codigo);
        estado_ = static_cast<int>(codigo);
        esperado_ = true;
    }
    return estado_;
}
