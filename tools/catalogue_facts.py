"""What the catalogue was decided to agree with for good, as plain tables: pinned names, and values set by others.

All of it is about rows that exist; a new row needs no line here.
"""

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
