// The reserved words, as they are stored; also those that stand where no search finds them.
#ifndef SPACES_RESERVEDWORDS_H
#define SPACES_RESERVEDWORDS_H

// clang-format off
constexpr const char *verilogWords = R"(always and assign attribute begin buf bufif0 bufif1 case casex casez cmos const deassign default defparam disable edge
else end endattribute endcase endfunction endmodule endpackage endprimitive endspecify endtable endtask event for
force forever fork function highz0 highz1 if ifnone initial inout input integer join large macromodule medium module
nand negedge nmos nor not notif0 notif1 or output package parameter pmos posedge primitive pull0 pull1 pulldown pullup
rcmos real realtime reg release repeat rnmos rpmos rtran rtranif0 rtranif1 scalared signed small specify specparam
strength strong0 strong1 supply0 supply1 table task time tran tranif0 tranif1 tri tri0 tri1 triand trior trireg use
vectored wait wand weak0 weak1 when while wire wor xnor xor)";
constexpr const char *verilogAMSOnlyWords = R"(a2d above abs absdelay abstol ac_stim access acos acosh analog analysis asin asinh atan atan2 atanh bound_step branch
ceil class connect connectmodule connectrules continuous cos cosh cross ddt ddt_nature discipline discontinuity
discrete domain driver_active driver_count driver_delay driver_local driver_next_state driver_next_strength
driver_state driver_strength driver_update dynamicparam endconnectrules enddiscipline endnature exclude exp final_step
flicker_noise floor flow from generate genvar ground hypot idt idt_nature idtmod inf initial_step laplace_nd
laplace_np laplace_zd laplace_zp last_crossing limexp ln log max merged min name nature net_resolution noise_table
noshowcancelled pathdelay_controlsignal pathdelay_max0 pathdelay_max1 pathdelay_min0 pathdelay_min1 pathdelay_sense
potential pow pragma pulsestyle_ondetect pulsestyle_onevent real2int resolveto showcancelled sin sinh slew split sqrt
string tan tanh timer to transition units using white_noise with wreal zi_nd zi_np zi_zd zi_zp)";
constexpr const char *verilogAWords = R"(abs abstol access acos acosh ac_stim always analog analysis and asin asinh assign atan atanh begin bound_step branch
buf bufif0 bufif1 case casex casez cmos cos cosh cross ddt ddt_nature deassign default defparam delay disable
discipline discontinuity edge else end endcase enddiscipline endfunction endmodule endnature endprimitive endspecify
endtable endtask event exclude exp final_step flicker_noise flow for force forever fork from function generate ground
highz0 highz1 idt idt_nature if ifnone inf initial initial_step inout input integer join laplace_nd laplace_np
laplace_zd laplace_zp large last_crossing ln log macromodule max medium min module nand nature negedge nmos
noise_table nor not notif0 notif1 or output parameter pmos posedge potential pow primitive pull0 pull1 pulldown pullup
rcmos real realtime reg release repeat rnmos rpmos rtran rtranif0 rtranif1 scalared sin sinh slew small specify
specparam sqrt strong0 strong1 supply0 supply1 table tan tanh task time timer tran tranif0 tranif1 transitiontri tri0
tri1 triand trior trireg units vectored wait wand weak0 weak1 while white_noise wire wor xnor xor zi_nd zi_np zi_zd
zi_zp)";
constexpr const char *vhdlWords = R"(abs access after alias all and architecture array assert attribute begin block body buffer bus case component
configuration constant disconnect downto else elsif end entity exit file for function generate generic group guarded
if impure in inertial inout is label library linkage literal loop map mod nand new next nor not null of on open or
others out package port postponed procedure process pure range record register reject rem report return rol ror select
severity shared signal sla sll sra srl subtype then to transport type unaffected units until use variable wait when
while with xnor xor)";
constexpr const char *vhdl93Words = R"(group impure inertial literal postponed pure reject rol ror shared sla sll sra srl unaffected xnor)";
constexpr const char *vhdlAMSOnlyWords = R"(across break limit nature noise procedural quantity reference spectrum subnature terminal through tolerance)";
constexpr const char *kirraWords = R"(abs acos acosh altergroup asin asinh atan atan2 atanh ceil correlate cos cosh else end ends exp export floor for
function global hypot ic if inline int library local log log10 march max min model nodeset parameters paramset plot
pow print real return save sens sin sinh sqrt statistics subckt tan tanh to truncate vary)";
constexpr const char *kirraHDLWords = R"(abs abstol ac_stim acos acosh always analog analysis ascii asin asinh assert assign atan atan2 atanh bound_step branch
break break_point build_string build_table bus case ceil complex const continue cos cosh cross debug default do domain
dot else enum error event exclude exp export fatal fclose fdebug fflush final finish flicker_noise floor flow fopen
for fread fread_table freq from fstrobe fwrite fwrite_table generate global halt hypot idtmod if inf initial inout
input integ integer interpolate laplace_nd laplace_np laplace_zd laplace_zp last_crossing limexp ln log mag max min
model module negedge net netlist_node_alias node noise_table notice output param_given parameter pclose phase popen
posedge pow pwl pwr quantity random read real reg reject_step reltol return sin sinh slew sqrt state step stop str
strcat strchr strcmp strcpy strcspn stream string strlen strobe strrchr strspn strstr strtoint strtoreal substr switch
system table tan tanh tdelay temp terminal threshold time transition unit val void vt wait warning when while
white_noise wire write zdelay zi_nd zi_np zi_zd zi_zp)";
constexpr const char *spiceWords = R"(ac aci agauss all am at aunif avg bart beta bisection black brief cross current data dc debug dec deriv derivative
dtemp enddata err1 exp fall fil find freelib freq from fs gauss goal hamm hann harris ic ignor integ integral kaiser
lam last limit lin max maxfld mer min minval model monte nodeset none norm numf oct opt optimize par passfail pe pl
plot poi power pp pu pulse pwl r rd rect results rin rise rms rout sffm sin start sweep targ td temp to tol top trig
uic unif unorm voltage weight when yin ymax ymin yout zin zout)";
constexpr const char *defWords = R"(align array assertions beginext bottomleft busbitchars by cannotoccupy canplace capacitance commonscanpins component
componentpin components constraints cover defaultcap design diearea diff direction distance dividerchar do drivecell e
eeqmaster end endext equal estcap fall fallmax fallmin fe fixed floating floorplan floorplanconstraints fn foreign
fromclockpin fromcomppin fromiopin frompin fs fw gcellgrid generate group groups history holdfall holdrise horizontal
in integer iotimings layer max maxdist maxhalfperimeter maxx maxy microns min minpins mustjoin n namemapstring
namescasesensitive net nets new nondefaultrule noshield ordered original out parallel partitions path pattern
patternname pin pinproperties pins placed property propertydefinitions range real rect reentrantpaths region regions
rise risemax risemin routed row rows s scanchains setupfall setuprise shape shield shieldnet site slewrate soft source
spacing special specialnet specialnets start step stop string style subnet sum synthesized taper taperrule technology
timingdisables toclockpin tocomppin toiopin topin topright tracks turnoff units unplaced use variable version vertical
vias voltage vpin w weight width wirecap wiredlogic xtalk)";
constexpr const char *lefWords = R"(abut abutment accurrentdensity active analog and antennaareafactor antennalengthfactor antennametalarea
antennametallength antennasize anyedge array average beginext block bottomleft bottomright buffer busbitchars by
cannotoccupy canplace capacitance capmultiplier class clock clocktype columnmajor componentpin components core corner
correctionfactor correctiontable cover cpersqdistcurrentcurrentdencurrentsourcecutcutarea data database
dccurrentdensity default defaultcap delay dielectric direction dividerchar do edgecapacitance edgerate
edgeratescalefactor edgeratethreshold1 edgeratethreshold2 eeq else end endcap endext extension fall fallcs fallrs
fallsatcur fallsatt1 fallslewlimit fallt0 fallthresh fallvoltagethreshold false fe feedthru fixed floorplan fn foreign
frequency frompin fs function fw gcellgrid generate generator ground height history hold horizontal if inout
inoutpinantennasize input inputnoisemargin inputpinantennasize integer intrinsic invert inverter irdrop iterate
iv_tables layer leakage lengththreshold leq library macro masterslice match maxdelay maxload megahertz metaloverhang
milliamps milliwatts minfeature minpins mpwh mpwl mustjoin mx mxr90 my myr90 namemapstring namescasesensitive
nanoseconds negedge nets new noisetable nondefaultrule noninvert nonunate nowireextensionatpin obs off offset ohms on
or orientation origin output outputnoisemargin outputpinantennasize outputresistance outputresistance overhang overlap
overlaps pad path pattern peak period picofarads pin pitch placed polygon port posedge post power pre property
propertydefinitions pulldownres pwl r0 r180 r270 r90 range real recovery rect resistance resistive ring rise risecs
risers risesatcur risesatt1 riseslewlimit riset0 risethresh risevoltagethreshold rms routing rowmajor rpersq samenet
scanuse sdfcond sdfcondend sdfcondstart setup shape shrinkage signal site size skew source spacer spacing specialnets
stable stack start step stop string structure symmetry table tableaxis tabledimension tabledimension tableentries
taperrule then thickness tiehigh tielow tieoffr time timing to topin topleft topofstackonly topright tracks
transitiontime tristate true type unateness units universalnoisemargin use uselengththreshold user variable version
vertical vhi via viarule victimlength victimnoise virtual vlo voltage volts w width wirecap wireextension x Y)";
// clang-format on

#endif
