"""What the catalogue must agree with, as plain tables: readers, defaults, pinned names, values set by others.

The program holds the readers and defaults in code. They stand here a second time on purpose, so that a slip in
either place shows when the two are compared.
"""

# One entry per property: number, reader code, default. A quoted default is a text, a number with a point is a
# double and one without an int, for this difference reaches the files. The words are explained in WORDS.
READERS = r"""
0 S empty; 1 B true; 2 D 0.0; 3 D 2; 4 N 0; 5 D "15"; 6 D 179.9; 7 I 0; 8 L 1; 9 D 178.0; 10 I 0; 11 I 20;
12 P 0.005; 13 D 0.5; 14 L 1; 15 P 0.005; 16 P 0.0005; 17 D 0.1; 18 D 1.5; 19 N 2; 20 D 1.0; 21 D 5.0; 22 D 10.0;
23 D 10.0; 24 D 250.0; 25 L 1; 26 S empty; 27 L 1; 28 L 2; 29 I 1000; 30 L 0; 31 D 0.01; 32 L 0; 33 B true;
34 S empty; 35 S empty; 36 S "0"; 37 L 1; 38 B false; 39 S empty; 40 B false; 41 S empty; 42 L 0; 43 S "RK"; 44 L 2;
45 B false; 46 S "1"; 47 S "Disulfide / -2.015650 @ C | xlink"; 48 B false; 49 S dss; 50 B false; 51 B false;
52 S empty; 53 S empty; 54 B false; 55 O unit20; 56 O unit20; 57 B false; 58 O null; 59 O null; 60 R ref;
61 T "None"; 62 N 2; 63 I 2000; 64 I 2; 65 I 1; 66 I 500; 67 O null; 68 N 0; 69 S empty; 70 A ["S","T"]; 71 D 0.01;
72 L 3; 73 B false; 74 B true; 75 B false; 76 I 0; 77 D 0.02; 78 O null; 79 L 1; 80 O unit10; 81 D 10000.0;
82 B false; 83 L 0; 84 D 95.0; 85 D 99.0; 86 D 400.0; 87 S empty; 88 L 0; 89 S "[spec]_[date]_Karvon"; 90 L 2;
91 L 2; 92 B false; 93 S "Trisulfide / 29.956421 @ C | xlink"; 94 N 0; 95 I 0; 96 I 100; 97 I -40; 98 S empty;
99 B false; 100 S "11"; 101 S empty; 102 I 1000; 103 L 2; 104 D 0.02; 105 L 0; 106 D "100"; 107 D "5"; 108 D "0.2";
109 B true; 110 S empty; 111 B false; 112 B true; 113 R ref; 114 L 1; 115 D 1.1; 116 B false; 117 D 8; 118 D 10;
119 O null; 120 R ref; 121 B false; 122 U empty; 123 B true; 124 U empty; 125 B true; 126 B false; 127 B true;
128 S empty; 129 O detachedGlycanTable; 130 T "Trypsin @ R,K | C-term"; 131 O disulfide; 132 N 0; 133 S "300";
134 B false; 135 B false; 136 B false; 137 I xic1; 138 I xic2; 139 I xic3; 140 D 0.0; 141 D 0.2; 142 I ff; 143 I ff;
144 D ff; 145 I ff; 146 I ff; 147 B false; 148 B ff; 149 I ff; 150 D 0.0; 151 D ff; 152 D 20.0; 153 I 300; 154 I ff;
155 I ff; 156 D ff; 157 I ff; 158 I ff; 159 I ff; 160 B false; 161 D ff; 162 D ff; 163 B false;
164 O detachedGlycanOptions; 165 O null; 166 S empty; 167 L 0; 168 R empty; 169 R ref; 170 O null; 171 O null;
172 B false; 173 B true; 174 I 500; 175 Q 0.1; 176 Q 0.2; 177 D 0.0; 178 D 0.0; 179 S empty; 180 D 120.0;
181 L "Trypsin @ R,K | C-term"; 182 L "QTOF / HCD"; 183 D 15.0; 184 B true; 185 I 8; 186 D 0.0; 187 D 2000.0;
188 D 350.0; 189 D 25000.0; 190 D 3.0; 191 D 2000.0; 192 D 130.0; 193 D 25000.0; 194 D 5.0; 195 D 10.0; 196 L 2;
197 B false; 198 B true; 199 D 0.0; 200 B true; 201 L 0; 202 O isotope; 203 T "1221.990637"; 204 O null; 205 D "1";
206 D "0.5"; 207 O masses5; 208 D "250"; 209 N 0; 210 O matchTolerance; 211 D 0.0; 212 D "10"; 213 D 9000;
214 I "10"; 215 B false; 216 D 600; 217 I "15"; 218 T "0"; 219 O null; 220 L multicore1; 221 D "0.02"; 222 D "0.04";
223 D 18; 224 O oligoImpurities; 225 O null; 226 O null; 227 R ref; 228 O unit9000; 229 O unit300; 230 S empty;
231 N 0; 232 D 50.0; 233 I 6; 234 I 32; 235 I 2; 236 T "None"; 237 D 80.0; 238 I 1; 239 B false; 240 I 1;
241 T empty; 242 T empty; 243 N 0; 244 S "RK"; 245 T "(unknown)"; 246 B false; 247 N 0; 248 N 2; 249 T empty;
250 T empty; 251 B false; 252 B false; 253 O null; 254 B true; 255 B true; 256 B true; 257 I 3; 258 N 0; 259 B true;
260 D 30; 261 B true; 262 B true; 263 L 2; 264 R ref; 265 O null; 266 S empty; 267 O null; 268 O null; 269 B true;
270 S empty; 271 O null; 272 D 179.9; 273 I 0; 274 L 1; 275 D 178.0; 276 I 0; 277 I 20; 278 P 0.005; 279 D 0.5;
280 L 1; 281 P 0.005; 282 P 0.0005; 283 D 0.1; 284 D 1.5; 285 L 0; 286 O massTolerances; 287 I 2; 288 I 1;
289 O null; 290 R ref; 291 R ref; 292 D 179.9; 293 I 0; 294 L 1; 295 D 178.0; 296 I 0; 297 I 20; 298 P 0.005;
299 D 0.5; 300 L 1; 301 P 0.0005; 302 P 0.00005; 303 D 0.05; 304 D 1.5; 305 D 2; 306 T xicMode1
"""

# Defaults that other classes provide. A change of the feature finder's or the fast extraction's own values belongs
# here too: rules were written for these.
WORDS = {
    "null": None, "empty": "", "ref": None, "unit20": "ppm 20.0", "unit10": "ppm 10.0", "unit9000": "ppm 9000",
    "unit300": "ppm 300", "multicore1": 1, "xicMode1": "Fast", "xic1": 128, "xic2": 1024, "xic3": 64,
    "dss": "DSS / 138.0680796 @ K | xlink\nXlink\\:DSS / 156.078644 @ K | common2 % Dead end",
}

# Defaults that are tables: their columns, and how many rows they begin with.
TABLES = {
    "detachedGlycanTable": (["Name", "Composition", "Mass", "Label", "RetentionTime"], 0),
    "detachedGlycanOptions": (["Kind", "Name", "Formula", "Complete"], 6),
    "disulfide": (["FirstChain", "FirstPosition", "SecondChain", "SecondPosition"], 0),
    "isotope": (["Name", "Element", "MassNumber", "Enrichment"], 1),
    "masses5": (["Name", "Mass", "Protein", "SamplesIds"], 5),
    "matchTolerance": (["Value", "Unit"], 1),
}

# Defaults that are records.
RECORDS = {
    "oligoImpurities": {"fivePrimeTruncations": 3, "threePrimeTruncations": 3, "additions": 1, "baseLosses": 1,
                        "sulfurLoss": True},
    "massTolerances": {"fullLengthProduct": {"value": 10, "unit": "ppm"}, "impurities": {"value": 20, "unit": "ppm"}},
}

FEATURE_FINDER = {
    142: 10, 143: 1, 144: 0.8, 145: 8, 146: 2, 148: True, 149: 1, 151: 10.0, 154: 0, 155: 3, 156: 3.0, 157: 3,
    158: 50, 159: 0, 161: 5.0, 162: 0.05,
}

# Keys of the search parameter file. Second keys of a property (units, the second database switch) resolve to
# nothing, and the word Disulfide names the table of disulfide bonds.
SEARCH_KEYS = """
Custom_xlink 38; Custom_xlink_text 39; DSS_xlink 48; DSS_xlink_text 49; DebugMode 40; DebugText 41;
DigestCutterType 42; DigestLetters 43; DigestType 44; Disulfide_text 47; Trisulfide 92; Trisulfide_text 93;
Wildcard 94; add_contaminants 111; add_decoys 112; apply_charges_index 25; apply_charges_text 26;
centroid_prefer_type 28; centroid_topk 29; centroid_width_type 30; centroid_width_val 31; chunking_method 32;
ralmix_auto_score 33; ralmix_extra_params 34; ralmix_fdr 35; ralmix_min_score 36; ralmix_sqlite_enable 37;
common_max 287; disulfide_protein_groups 46; enable_promote_score_nglycan 50; export_mzIdentML_checkbox 51;
extra_text 52; features_text 53; focused_database_checkbox 54; fragment_mass_error 55; fragment_mass_error2 56;
fragment_ppm_hardcut 57; glycan_text 58; kinclusion_filter 59; lock_mass_list 61; machine_type 62; max_chunk_size 63;
max_precursors 65; maximum_missed_cleavages 64; min_chunk_size 66; mod_text 67; msconvert_filter 69;
nglycan_quick_reject_labile_scale 71; off_by_one 72; output_report 73; output_results 74; output_top_scores 75;
peak_filter_min_number 76; peak_filter_mz_tolerance 77; peak_filter_selected 78; precursor_assignments 79;
precursor_mass_error 80; precursor_mass_max 81; precursor_ppm_hardcut 82; protein_fdr_pulldown 83; quick_reject 84;
quick_reject_wildcard 85; random_sample_size 86; rare_max 288; recal_coeffs 87; recal_option 88; results_suffix 89;
schema_version 90; score_version 91; wildcard_delta 95; wildcard_max_mass 96; wildcard_min_mass 97;
wildcard_residues 98; xlink_decoys_checkbox 99; xlink_decoys_mass_offset 100; xlink_details 101;
allowed_third_letters_in_nglycan_motif 70
"""

# Keys of the preview preset that the search does not use as well.
PREVIEW_KEYS = """
ArgMod 241; CTermMod 242; digest_side 243; CysMod 245; FragType 247; LysMod 249; NTermMod 250; phospho_search 251;
AllCharges 252
"""

# Entry names in default cells, in upgrade steps and in table cells, and the shared constants.
ENTRY_NAMES = """
AdvancedConfiguration 0; AutoFindMasses 4; KarvonEnablePromoteScoreNglycan 50; CustomColumns 110;
DetachedGlycans 129; Disulfide 131; GlycanOptions 164; IntactOptions 170; IntactProteins 171; InterestTimeEnd 177;
InterestTimeStart 178; Isotope 202; MassTable 207; MatchTolerance 210; OligoOptions 225; OligoMolecules 226;
Proteins 253; Samples 266; SamplesProteins 267; Tolerances 286
"""

TRACE_BLOCKS = {"Bpi": 6, "Tic": 272, "Uv": 292}
TRACE_KEYS = ("BaselineMaxAngle", "BaselineMaxLimit", "BaselineMethod", "BaselineMinAngle", "BaselineMinLimit",
              "BaselinePushLimit", "BaselinePushTolerance", "IntervalTimeMin", "PeakMethod", "PeakTolMax",
              "PeakTolMin", "SmoothSigma", "SmoothSigmaBaseline")

# Values that upgrade steps insert and that presets bring along; each must pass the rule of its row and, in a list
# row, lie in the list. A preview preset without a line leaves -1.
SET_BY_OTHERS = {
    1: [True, False], 2: [0.0, 2.0], 4: [1, 2, 3], 33: [False], 37: [0, 1], 59: [""], 62: [0, 5, 7], 67: [""],
    68: [0, 1], 70: [["S", "T"]], 83: [2], 136: [False], 167: [0, 1], 168: [""], 169: [""],
    181: ["Trypsin @ R,K | C-term"], 182: ["QTOF / HCD"], 196: ["2% FDR"], 201: [0], 209: [0], 220: [0, 1, 2],
    227: [""], 243: [-1, 0], 247: [-1, 0], 248: [-1, 0, 2], 258: [0], 261: [True],
    264: ["../../Intact/report_config/Intact_icIEF_Report.rptc"], 285: [0, 1],
    290: ["../filters/Remove XIC AUC is 0.cft"], 291: ["../UI_layouts/Digested_Oligo.ini"], 306: ["Fast", "Standard"],
    8: ["Enable"], 14: ["Enable"], 274: ["Enable"], 280: ["Enable"], 294: ["Enable"], 300: ["Enable"],
}

# Rows that hold a reference to a file.
REFERENCES = (60, 113, 120, 168, 169, 227, 264, 290, 291)

# Numbers whose meaning a list explains although the row is edited as a number.
NUMBERS_WITH_MEANING = (4, 19, 62, 68, 94, 132, 209, 231, 243, 247, 248, 258)
