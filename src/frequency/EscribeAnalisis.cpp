// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/EscribeAnalisis.h"

#include <string_view>
#include <vector>

#include "checks/Json.h"
#include "frequency/Cifras.h"
#include "frequency/Diagramas.h"
#include "model/Texto.h"

namespace frequency {
namespace {

using checks::Citado;

constexpr auto N = EnJson;

constexpr std::size_t AnchoLey = 27, AnchoNumero = 9, AnchoCuantil = 7;
constexpr int DecimalesDeLluvia = 1;

std::string CabezaDe(const Analisis& a)
{
    const auto& anios = a.serie.maximos;
    const Descriptivos& d = a.muestra.directos;
    std::string t = "Máximos anuales [mm]: " + std::to_string(anios.size()) + ", de " +
                    std::to_string(anios.front().anio) + " a " + std::to_string(anios.back().anio) + "\n";
    if (a.muestra.secos > 0) t += "  de los " + std::to_string(a.muestra.x.size()) + " años con lluvia:\n";
    t += "  media " + Con(d.m.media, 2) + ", desvío " + Con(d.m.desvio, 2) + ", coeficiente de variación " +
         Con(d.m.desvio / d.m.media, 3) + ", asimetría " + Con(d.m.asimetria, 3) + "\n";
    t += "  momentos L: l1 " + Con(d.l.l1, 2) + ", l2 " + Con(d.l.l2, 3) + ", t3 " + Con(d.l.t3, 4) +
         ", t4 " + Con(d.l.t4, 4) + "\n";
    for (const std::string& aviso : a.serie.avisos)
        t += "  " + aviso + "\n";
    return t;
}

std::string TextoDePruebas(const Analisis& a)
{
    std::string t = "\nPruebas de la muestra, al 5 %\n";
    for (const Prueba& p : a.pruebas) {
        t += "  " + model::AjustaIzquierda(p.nombre, 34) +
             model::AjustaIzquierda(std::string(p.simbolo) + " " + Cifras(p.estadistico), 14) + "p " +
             Con(p.p, 3) + "  " + p.veredicto + "\n";
        if (!p.remedio.empty()) t += "      " + p.remedio + "\n";
    }
    return t;
}

std::string TextoDeParametros(const AjusteDeLey& f)
{
    std::string t;
    for (std::size_t i = 0; i < f.ley->cuantos; ++i)
        t += (i > 0 ? ", " : "") + std::string(f.ley->parametros[i].simbolo) + " " +
             Cifras((*f.estimado.p)[i]);
    if (f.ley == &Gev) t += " (de Coles " + Cifras(-(*f.estimado.p)[2]) + ")";
    return t;
}

std::string TextoDeAjustes(const Analisis& a)
{
    std::string t = "\nAjuste por " + std::string(NombreDe(a.metodo)) + "\n";
    for (const AjusteDeLey& f : a.ajustes) {
        t += "  " + model::AjustaIzquierda(f.ley->nombre, AnchoLey);
        t += f.estimado.p ? TextoDeParametros(f) + "\n" : "";
        if (!f.estimado.nota.empty())
            t += (f.estimado.p ? std::string(AnchoLey + 2, ' ') : "") + f.estimado.nota + ".\n";
    }
    t += "\nBondad" +
         (a.pedido.cuantas > 0 ? ", y su p por " + std::to_string(a.pedido.cuantas) +
                                     " remuestreos con la semilla " + std::to_string(a.pedido.semilla)
                               : std::string()) +
         "\n  " + std::string(AnchoLey, ' ');
    for (const char* titulo : {"KS", "p", "A2", "p", "chi2", "p", "PPCC", "p", "ln L", "AICc", "BIC"})
        t += Derecha(titulo, AnchoNumero);
    t += "\n";
    for (const AjusteDeLey& f : a.ajustes) {
        if (!f.estimado.p) continue;
        const bool hay = f.remuestreo.Hay();
        const auto p = [&](double x) { return Derecha(hay ? Con(x, 3) : "-", AnchoNumero); };
        t += "  " + model::AjustaIzquierda(f.ley->nombre, AnchoLey);
        t += Derecha(Con(f.bondad.ks, 4), AnchoNumero) + p(f.remuestreo.p.ks);
        t += Derecha(Con(f.bondad.ad, 3), AnchoNumero) + p(f.remuestreo.p.ad);
        t += Derecha(Con(f.bondad.chi2, 2), AnchoNumero) + p(f.remuestreo.p.chi2);
        t += Derecha(Con(f.bondad.ppcc, 4), AnchoNumero) + p(f.remuestreo.p.ppcc);
        for (const double c : {f.criterios.logVerosimilitud, f.criterios.aicc, f.criterios.bic})
            t += Derecha(Con(c, 2), AnchoNumero);
        t += "\n";
    }
    return t;
}

std::string RenglonDe(std::string_view nombre, const PorRecurrencia& q)
{
    std::string t = "  " + model::AjustaIzquierda(nombre, AnchoLey);
    for (const double x : q)
        t += " " + Derecha(Con(x, DecimalesDeLluvia), AnchoCuantil);
    return t + "\n";
}

std::string TextoDeCuantiles(const Analisis& a)
{
    std::string t = "\nLámina [mm] por recurrencia [años]\n  " + std::string(AnchoLey, ' ');
    for (const auto r : model::Recurrencias)
        t += " " + Derecha(std::to_string(r), AnchoCuantil);
    t += "\n";
    for (const AjusteDeLey& f : a.ajustes) {
        if (!f.estimado.p) continue;
        t += RenglonDe(f.ley->nombre, f.cuantiles);
        if (f.ley != a.recomendacion.ley || !f.remuestreo.Hay()) continue;
        t += RenglonDe("    banda, 5 %", f.remuestreo.banda5) +
             RenglonDe("    banda, 95 %", f.remuestreo.banda95);
        if (f.remuestreo.sirven < a.pedido.cuantas)
            t += "      Sirvieron " + std::to_string(f.remuestreo.sirven) + " remuestreos.\n";
    }
    return t + "\nRecomendación\n  " + a.recomendacion.motivo + "\n";
}

// --- JSON ---

std::string JsonDeBondad(const Bondad& b)
{
    return "{\"ks\":" + N(b.ks) + ",\"ad\":" + N(b.ad) + ",\"chi2\":" + N(b.chi2) + ",\"ppcc\":" + N(b.ppcc) +
           "}";
}

std::string JsonDeAjuste(const AjusteDeLey& f)
{
    std::string t = "{\"ley\":" + Citado(f.ley->clave) + ",\"nombre\":" + Citado(f.ley->nombre) +
                    ",\"nota\":" + Citado(f.estimado.nota) + ",\"p0\":" + N(f.p0) +
                    ",\"bajos\":" + N(f.estimado.bajos.value_or(0)) + ",\"parametros\":";
    if (!f.estimado.p) return t + "null}";
    t += "{";
    for (std::size_t i = 0; i < f.ley->cuantos; ++i)
        t += (i > 0 ? "," : "") + Citado(f.ley->parametros[i].simbolo) + ":" + N((*f.estimado.p)[i]);
    t += "},\"lnL\":" + N(f.criterios.logVerosimilitud) + ",\"aic\":" + N(f.criterios.aic) +
         ",\"aicc\":" + N(f.criterios.aicc) + ",\"bic\":" + N(f.criterios.bic) +
         ",\"bondad\":" + JsonDeBondad(f.bondad) + ",\"cuantiles\":" + Arreglo(f.cuantiles, N);
    if (f.remuestreo.Hay())
        t += ",\"remuestreos\":" + std::to_string(f.remuestreo.sirven) +
             ",\"p\":" + JsonDeBondad(f.remuestreo.p) + ",\"banda5\":" + Arreglo(f.remuestreo.banda5, N) +
             ",\"banda95\":" + Arreglo(f.remuestreo.banda95, N);
    return t + "}";
}

std::string JsonDePrueba(const Prueba& p)
{
    return "{\"prueba\":" + Citado(p.clave) + ",\"nombre\":" + Citado(p.nombre) +
           ",\"fuente\":" + Citado(p.fuente) + ",\"estadistico\":" + N(p.estadistico) + ",\"z\":" + N(p.z) +
           ",\"p\":" + N(p.p) + ",\"rechaza\":" + (p.rechaza ? "true" : "false") +
           ",\"veredicto\":" + Citado(p.veredicto) + ",\"remedio\":" + Citado(p.remedio) + "}";
}

std::string JsonDePuntos(const std::vector<Punto>& puntos)
{
    return Arreglo(puntos, [](const Punto& q) { return "[" + N(q.x) + "," + N(q.y) + "]"; });
}

/// What the two pictures show, of the law recommended its cloud.
std::string JsonDeDiagramas(const Analisis& a)
{
    const AjusteDeLey* recomendada = nullptr;
    for (const AjusteDeLey& f : a.ajustes)
        if (f.ley == a.recomendacion.ley) recomendada = &f;
    const DiagramaL d = DiagramaDe(a, recomendada);
    std::string t =
        "{\"muestra\":[" + N(d.muestra.x) + "," + N(d.muestra.y) + "],\"leyes\":" +
        Arreglo(d.leyes,
                [](const Curva& c) {
                    return "{\"ley\":" + Citado(c.ley->clave) + ",\"puntos\":" + JsonDePuntos(c.puntos) + "}";
                }) +
        ",\"elipse\":" + JsonDePuntos(d.elipse) + "}";
    t += ",\"posicion\":" + N(a.posicion);
    for (const Ejes ejes : {Ejes::DeGumbel, Ejes::DeLogNormal}) {
        const PapelDeProbabilidad papel = PapelDe(a, ejes, a.posicion);
        t += (ejes == Ejes::DeGumbel ? ",\"papelGumbel\":" : ",\"papelLogNormal\":") +
             std::string("{\"datos\":") + JsonDePuntos(papel.datos) + ",\"leyes\":" +
             Arreglo(papel.leyes,
                     [](const CurvaDePapel& c) {
                         return "{\"ley\":" + Citado(c.curva.ley->clave) +
                                ",\"puntos\":" + JsonDePuntos(c.curva.puntos) + "}";
                     }) +
             "}";
    }
    return t;
}

}  // namespace

std::string TextoDe(const Analisis& a)
{
    return CabezaDe(a) + TextoDePruebas(a) + TextoDeAjustes(a) + TextoDeCuantiles(a);
}

std::string JsonDe(const Analisis& a)
{
    const Descriptivos& d = a.muestra.directos;
    std::string t = "{\"metodo\":" + Citado(ClaveDe(a.metodo)) +
                    ",\"semilla\":" + std::to_string(a.pedido.semilla) +
                    ",\"remuestras\":" + std::to_string(a.pedido.cuantas);
    t += ",\"maximos\":" + Arreglo(a.serie.maximos, [](const Maximo& m) {
             return "{\"anio\":" + std::to_string(m.anio) + ",\"valor\":" + N(m.valor) + "}";
         });
    t += ",\"avisos\":" + Arreglo(a.serie.avisos, [](const std::string& x) { return Citado(x); });
    t += ",\"muestra\":{\"media\":" + N(d.m.media) + ",\"desvio\":" + N(d.m.desvio) +
         ",\"asimetria\":" + N(d.m.asimetria) + ",\"l1\":" + N(d.l.l1) + ",\"l2\":" + N(d.l.l2) +
         ",\"t3\":" + N(d.l.t3) + ",\"t4\":" + N(d.l.t4) + ",\"secos\":" + std::to_string(a.muestra.secos) +
         ",\"p0\":" + N(a.muestra.P0()) + "}";
    t += ",\"pruebas\":" + Arreglo(a.pruebas, JsonDePrueba);
    t += ",\"recurrencias\":" + Arreglo(model::Recurrencias, [](int r) { return std::to_string(r); });
    t += ",\"ajustes\":" + Arreglo(a.ajustes, JsonDeAjuste);
    t += ",\"diagramaL\":" + JsonDeDiagramas(a);
    t += ",\"recomendacion\":{\"ley\":" +
         (a.recomendacion.ley != nullptr ? Citado(a.recomendacion.ley->clave) : std::string("null")) +
         ",\"motivo\":" + Citado(a.recomendacion.motivo) + "}}\n";
    return t;
}

std::string CsvDe(const Analisis& a)
{
    std::string t = "ley,metodo,recurrencia,cuantil,banda5,banda95\n";
    for (const AjusteDeLey& f : a.ajustes) {
        if (!f.estimado.p) continue;
        const bool hay = f.remuestreo.Hay();
        for (std::size_t i = 0; i < f.cuantiles.size(); ++i)
            t += std::string(f.ley->clave) + "," + std::string(ClaveDe(a.metodo)) + "," +
                 std::to_string(model::Recurrencias[i]) + "," + Exacto(f.cuantiles[i]) + "," +
                 (hay ? Exacto(f.remuestreo.banda5[i]) : "") + "," +
                 (hay ? Exacto(f.remuestreo.banda95[i]) : "") + "\n";
    }
    return t;
}

}  // namespace frequency
